#pragma once

#include <optional>

#include "base/Clock.h"
#include "base/PerSide.h"
#include "battle/BarRange.h"
#include "battle/Battlefield.h"
#include "battle/ShotReport.h"
#include "battle/WhoMayAct.h"

namespace skylob {

/// Where a side's two bars stand.
struct Aim {
    int speed = kSpeedRange.minimum;
    int angle = kAngleRange.minimum;  ///< degrees, 10 (flat) to 90 (straight up)
};

/// The boxes that a player can tick.
enum class Box { Sound, Trajectory, Meteors, Lightning, Wind };

/// What the players were told when the last turn began. It stays on the screen until the next one:
/// a round can end with fewer men than it says.
struct TurnNotice {
    int side = 0;  ///< whose turn it is; 0 before the first one
    PerSide<int> menLeft;
};

/// The battle screen's own state of a set. Sides are 1 (left) and 2 (right); positions are field
/// units.
struct BattleState {
    Battlefield field;

    Phase phase = Phase::Setup;
    int Shooter = kLeftSide;  ///< the side whose turn it is
    int RoundNumber = 0;      ///< 1-based; 0 before the first round
    PerSide<int> MenLeft;     ///< 100 at the start of every round
    PerSide<Aim> aim;         ///< to be changed through Aims
    TurnNotice turnNotice;
    int Wind = 0;  ///< 6..39 to the right, -6..-39 to the left, 0 when it is off

    /// The width of the pen as it was last left: by the ground's lines, or, at 1, by an explosion
    /// or a meteor. Bolts and the next round's stars are drawn with it. (Shells leave it alone.)
    int penWidth = 1;

    std::optional<ShotReport> report;             ///< of the last shot of the set
    PerSide<std::optional<ShotReport>> lastShot;  ///< each side's, of this round

    int NearMissKills = 0;  ///< men killed by the last near miss
    int LastImpactX = 0;    ///< where the computer's last shell came down
    int AimDistance = 0;    ///< the computer's last miss; 0: it has to measure the field
    int ComputerAngle = 0;  ///< degrees; the computer never shoots flatter than that

    bool SoundOn = false;                                            ///< chkSound is ticked
    bool ShowTrajectory = false;                                     ///< chkTrajectory is ticked
    bool chkMeteors = false, chkLightning = false, chkWind = false;  ///< ticked
    bool timerMeteors = false, timerLightning = false;               ///< running

    int gameSpeedAtStart = 50;  ///< GameSpeed as it was when the set began
    /// The game speed bar stands at GameSpeed, and no more at its minimum: from the first turn of
    /// a human on.
    bool barShowsGameSpeed = false;

    DateTime TurnStartTime{};  ///< when the human turn began or a control was last used
};

}  // namespace skylob
