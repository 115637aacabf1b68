#pragma once

#include <vector>

#include "battle/BattleControls.h"
#include "battle/BattlePorts.h"
#include "battle/BattleState.h"
#include "battle/FieldAnimation.h"
#include "battle/ShellFlight.h"

namespace skylob {

/// Thunderstorms over the battlefield while the player leaves the controls alone: one to four
/// bolts, a long pause, thunder.
class LightningStorm {
  public:
    /// All of these must outlive the storm.
    LightningStorm(const BattleState& state, BattleControls& controls, const BattlePorts& ports,
                   FieldAnimation& animation);

    /// Every 500 ms. A storm comes with one tick in ten and runs to its end inside the call, or,
    /// while the bolts strike, to the command that interrupts it.
    void timerLightning_Timer();

  private:
    /// From its start downwards, a unit of height each; in columns 5..995 and more than 5 above
    /// the ground.
    using Bolt = std::vector<FieldPoint>;

    void rage();
    void strike(int bolts);
    FieldPoint start(const Bolt& previous);
    Bolt path(FieldPoint start);
    void draw(const Bolt& bolt);
    void thunder(int bolts);
    void clearSky();

    const BattleState& m_state;
    BattleControls& m_controls;
    BattlePorts m_ports;
    FieldAnimation& m_animation;
};

}  // namespace skylob
