#pragma once

#include "base/Clock.h"
#include "base/SoundPlayer.h"
#include "battle/BattlePanel.h"
#include "battle/BattleView.h"

namespace skylob {

/// The controls as a whole: what they show, what they sound like, and when they were last used.
class ControlDesk {
  public:
    /// All of these must outlive the desk.
    ControlDesk(BattleState& state, const basSkylob& shared, const Clock& clock,
                SoundPlayer& sounds, BattleView& view);

    /// What the view has been shown last.
    const BattlePanel& panel() const { return m_panel; }

    /// Shows the view the panel of the present state, if it is another one than before.
    void show();

    /// Shows the same panel again: the player has changed a control that may not be changed.
    void showAgain() { m_view.showPanel(m_panel); }

    /// Notes the present time as the last activity.
    void markActivity();

    /// An option or a bar has another value, whoever gave it: marks the activity and shows it.
    void changed();

    /// A bar's value has been changed: the same, and then it clicks.
    void barMoved();

  private:
    BattleState& m_state;
    const basSkylob& m_shared;
    const Clock& m_clock;
    SoundPlayer& m_sounds;
    BattleView& m_view;
    BattlePanel m_panel;
};

}  // namespace skylob
