#pragma once

#include "base/Clock.h"
#include "base/PerSide.h"
#include "battle/Battlefield.h"

namespace skylob {

/// The battle screen's own state of a set. Sides are 1 (left) and 2 (right); positions are field
/// units.
struct BattleState {
    Battlefield field;

    int Shooter = 1;       ///< the side whose turn it is
    int RoundNumber = 0;   ///< 1-based; 0 before the first round
    PerSide<int> MenLeft;  ///< 100 at the start of every round
    int Wind = 0;          ///< 6..39 to the right, -6..-39 to the left, 0 when it is off
    /// The width of the pen as it was last left: by the ground's lines, or, at 1, by an explosion
    /// or a meteor. Bolts and the next round's stars are drawn with it. (Shells leave it alone.)
    int penWidth = 1;

    int NearMissKills = 0;  ///< men killed by the last near miss
    int LastImpactX = 0;    ///< where the computer's last shell came down
    int AimDistance = 0;    ///< the computer's last miss; 0: it has to measure the field
    int ComputerAngle = 0;  ///< degrees; the computer never shoots flatter than that
    bool ShowTrajectory = false;
    bool SoundOn = false;
    DateTime TurnStartTime{};  ///< when the human turn began or a control was last used
};

}  // namespace skylob
