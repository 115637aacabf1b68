#pragma once

#include "base/Pacer.h"
#include "base/RandomInt.h"
#include "battle/BattleObserver.h"
#include "battle/Commands.h"
#include "battle/ControlDesk.h"

namespace skylob {

/// The battle screen's options: five boxes and the game speed. A box that is clicked when it may
/// not be (see WhoMayAct.h) goes back to what it was. While a meteor or a storm is under way,
/// clicks on its two boxes end it and follow it; both serve events once when they are done.
class BattleOptions {
  public:
    /// All of these must outlive the options.
    BattleOptions(basSkylob& shared, BattleState& state, ControlDesk& desk, Commands& commands,
                  RandomSource& random, Pacer& pacer, BattleObserver& observer);

    /// Sets basSkylob::GameSpeed. A value outside kGameSpeedRange is brought to the nearer end;
    /// one at which the bar stands already is no change.
    void setGameSpeed(int value);

    void chkSound_Click(bool ticked);
    void chkTrajectory_Click(bool ticked);
    void chkMeteors_Click(bool ticked);
    void chkLightning_Click(bool ticked);
    /// Draws a wind when the box is ticked and calms it otherwise.
    void chkWind_Click(bool ticked);

    /// Another wind, for a new round.
    void drawWind();

  private:
    void carryOut(Deed deed, std::function<void()> change);
    void tellOf(Box box);

    basSkylob& m_shared;
    BattleState& m_state;
    ControlDesk& m_desk;
    Commands& m_commands;
    RandomSource& m_random;
    Pacer& m_pacer;
    BattleObserver& m_observer;
};

}  // namespace skylob
