#include "battle/ControlDesk.h"

#include <utility>

namespace skylob {

ControlDesk::ControlDesk(BattleState& state, const basSkylob& shared, const Clock& clock,
                         SoundPlayer& sounds, BattleView& view)
    : m_state{state},
      m_shared{shared},
      m_clock{clock},
      m_sounds{sounds},
      m_view{view},
      m_panel{panelOf(state, shared)} {
}

void ControlDesk::show() {
    BattlePanel panel = panelOf(m_state, m_shared);
    if (panel == m_panel) return;
    m_panel = std::move(panel);
    m_view.showPanel(m_panel);
}

void ControlDesk::markActivity() {
    m_state.TurnStartTime = m_clock.now();
}

void ControlDesk::changed() {
    markActivity();
    show();
}

void ControlDesk::barMoved() {
    changed();
    m_sounds.PlaySound("click");
}

}  // namespace skylob
