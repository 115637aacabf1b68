#pragma once

#include <cstdint>
#include <vector>

#include "base/basSkylob.h"
#include "battle/BattleControls.h"
#include "battle/BattlePorts.h"
#include "battle/BattleState.h"
#include "battle/FieldAnimation.h"
#include "battle/ShellFlight.h"

namespace skylob {

/// Where a meteor goes: a column further with every step, and 0 to 2 units down.
struct MeteorPath {
    std::vector<FieldPoint> points;  ///< in columns 15..985 and more than 15 above the ground
    FieldPoint end;                  ///< the step after the last point, where it is over
    bool hitsGround = false;         ///< false when it leaves the sky at a side, however low
};

/// Draws a meteor's path: its column, height, direction (unless it starts near a side), slope,
/// and then the fall of each step. One that enters from a side leaves again at once.
MeteorPath meteorPath(const Battlefield& field, RandomSource& random);

/// The counts that a meteor stays at each of its points: 0 from a game speed of 100 on.
std::int32_t meteorDelayCount(int gameSpeed);

/// Meteors cross the sky while the player leaves the controls alone. One that comes down explodes
/// without a sound and hurts nobody.
class Meteors {
  public:
    /// All of these must outlive the meteors.
    Meteors(const basSkylob& shared, BattleState& state, BattleControls& controls,
            const BattlePorts& ports, FieldAnimation& animation);

    /// Every 333 ms. A meteor comes with one tick in twenty and runs to its end, or to the
    /// command that interrupts it, inside the call.
    void timerMeteors_Timer();

  private:
    void fly();
    void streak(const std::vector<FieldPoint>& points);

    const basSkylob& m_shared;
    BattleState& m_state;
    BattleControls& m_controls;
    BattlePorts m_ports;
    FieldAnimation& m_animation;
};

}  // namespace skylob
