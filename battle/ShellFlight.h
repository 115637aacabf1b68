#pragma once

#include <cstdint>

#include "battle/Battlefield.h"
#include "battle/FieldAnimation.h"
#include "battle/FieldPoint.h"

namespace skylob {

/// Quirk "wide degree": not quite pi / 180, and single precision. Angles act 1.7 % wider than true
/// degrees, and every player's eye is trained on it.
inline constexpr double kDegree = 0.017745329f;

/// How a shell is fired.
struct Launch {
    int side;    ///< 1 fires to the right, 2 to the left
    int speed;   ///< speed control, 100..999
    int angle;   ///< angle control, 10 (flat) to 90 (straight up) degrees
    int pieceX;  ///< the shooter's piece: its column
    int pieceY;  ///< ... and the height of the ground under it
    int wind;    ///< see BattleState::Wind
};

/// Where a shell leaves its piece: so high above the ground under it.
inline constexpr int kMuzzleHeight = 8;

/// The direction in which a side's shell leaves at an angle of the control, in radians of the
/// field: 0 straight up, more to the right, less to the left.
double launchDirection(int side, int angle);

/// A shell's ballistic path in half-unit steps of time.
class ShellFlight {
  public:
    explicit ShellFlight(const Launch& launch);

    /// Where the shell is now, rounded to whole units.
    FieldPoint position() const;

    /// Half a unit of time goes by.
    void advance();

  private:
    int m_wind;
    int m_x0, m_y0;
    double m_vx, m_vy;
    float m_t = 0;
};

/// Whether a shell at `at` flies on: it is inside the field and above the ground.
bool isFlying(FieldPoint at, const Battlefield& field);

/// What the shell leaves behind.
enum class Trail { None, Coloured };

/// Flies a shell over the field until it comes down or leaves the field, and shows it doing so
/// on the screen picture alone, each step held for `delayCount` counts. Returns its last point.
FieldPoint flyShell(const Launch& launch, const Battlefield& field, Trail trail,
                    FieldAnimation& animation, std::int32_t delayCount);

/// The counts that a half step of flight lasts at a game speed: 1 at 99.
std::int32_t FlightDelayCount(int gameSpeed);

}  // namespace skylob
