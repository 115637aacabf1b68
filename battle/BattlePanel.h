#pragma once

#include <string>

#include "base/PerSide.h"
#include "base/basSkylob.h"
#include "battle/BattleState.h"

namespace skylob {

/// One side's controls. The whole group is enabled while it is that side's turn.
struct SidePanel {
    int scrollSpeed = 0;  ///< in kSpeedRange
    int scrollAngle = 0;  ///< in kAngleRange
    std::string labelSpeed, labelAngle, labelMenLeft;
    /// The side's last shot of the round; empty before it.
    std::string labelLastSpeed, labelLastAngle, labelLastLanding;
    int menLeft = 0;       ///< what labelMenLeft says, for a gauge beside it
    bool enabled = false;  ///< the frame and everything in it

    bool operator==(const SidePanel&) const = default;
};

/// What the battle screen's controls show: a plain value, made from the state alone.
struct BattlePanel {
    PerSide<SidePanel> side;
    int turn = 0;  ///< the side whose turn is marked, 0 before the first turn

    int scrollGameSpeed = 0;  ///< in kGameSpeedRange
    std::string labelGameSpeed, labelRoundNumber;
    std::string labelReport;        ///< of the last shot, whoever fired it
    std::string labelScore, score;  ///< the rounds won: "2 : 1", and the same in words

    bool chkSound = false, chkTrajectory = false, chkMeteors = false;
    bool chkLightning = false, chkWind = false;
    std::string chkWindCaption, windInWords;

    /// cmdShoot, cmdQuit, the game speed bar and the five boxes are usable.
    bool commandsEnabled = false;

    /// The set is only watched: of these, cmdQuit and the game speed bar are usable.
    bool isWatched = false;

    /// Whether the timers of meteors and lightning run.
    bool timerMeteors = false, timerLightning = false;

    bool operator==(const BattlePanel&) const = default;
};

/// Where the game speed bar stands.
int gameSpeedOnBar(const BattleState& state, const basSkylob& shared);

/// What stands above a side's controls: its name, and how skilled the computer is.
std::string sideCaption(int side, const basSkylob& shared);

BattlePanel panelOf(const BattleState& state, const basSkylob& shared);

}  // namespace skylob
