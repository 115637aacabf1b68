#pragma once

#include <cstdint>
#include <vector>

#include "base/basSkylob.h"
#include "battle/ShellFlight.h"
#include "battle/Sky.h"

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

/// Meteors cross the sky. One that comes down explodes without a sound and hurts nobody.
class Meteors {
  public:
    /// `shared`, whose GameSpeed is theirs, must outlive the meteors.
    Meteors(const Sky& sky, const basSkylob& shared) : m_sky{sky}, m_shared{shared} {}

    /// One meteor, to its end or its interruption. Leaves the pen at a width of 1.
    void fly();

  private:
    void streak(const std::vector<FieldPoint>& points);

    Sky m_sky;
    const basSkylob& m_shared;
};

}  // namespace skylob
