#pragma once

#include <functional>
#include <vector>

#include "battle/BattleControls.h"
#include "battle/BattlePorts.h"
#include "battle/BattleState.h"
#include "battle/FieldAnimation.h"
#include "battle/ShellFlight.h"

namespace skylob {

/// A bolt from its start downwards, a unit of height with each point; in columns 5..995 and more
/// than 5 above the ground.
using Bolt = std::vector<FieldPoint>;

/// Draws a bolt's path: its tendency at the start and after every 100 points, the length and the
/// sense of each of its short runs. `mayGoOn` is asked whenever a tendency has been drawn.
Bolt boltPath(FieldPoint start, const Battlefield& field, RandomSource& random,
              const std::function<bool()>& mayGoOn);

/// Where the next bolt starts: the first one, and every other one in chance's favour, in the sky,
/// the rest at a point of the middle third of the one before.
FieldPoint boltStart(const Bolt& previous, RandomSource& random);

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
    void rage();
    void strike(int bolts);
    void draw(const Bolt& bolt);
    void thunder(int bolts);
    void clearSky();

    const BattleState& m_state;
    BattleControls& m_controls;
    BattlePorts m_ports;
    FieldAnimation& m_animation;
};

}  // namespace skylob
