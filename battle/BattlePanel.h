#pragma once

#include <string>

#include "base/PerSide.h"

namespace skylob {

/// A scroll bar's range and value; arrow keys move it by 1, Page keys by `largeChange`.
struct ScrollBar {
    int minimum, maximum, largeChange;
    int value = minimum;
};

/// One side's controls. The whole group is enabled while it is that side's turn.
struct SidePanel {
    ScrollBar scrollSpeed{100, 999, 10};
    ScrollBar scrollAngle{10, 90, 5};
    std::string labelSpeed = "Speed: 100", labelAngle = "Angle:   10", labelMenLeft;
    int menLeft = 0;       ///< what labelMenLeft says, for a gauge beside it
    bool enabled = false;  ///< the frame and everything in it
};

/// What the battle screen's controls show; the rules fill it in, the screen follows it.
struct BattlePanel {
    PerSide<SidePanel> side;
    int turn = 0;  ///< the side whose turn is marked, 0 before the first turn

    ScrollBar scrollGameSpeed{1, 99, 10};
    std::string labelGameSpeed = "Game Speed: 1", labelRoundNumber;

    bool chkSound = false, chkTrajectory = false, chkMeteors = false;
    bool chkLightning = false, chkWind = false;
    std::string chkWindCaption = "Wind";

    /// cmdShoot, cmdQuit, the game speed bar and the five boxes are usable.
    bool commandsEnabled = false;

    /// Whether the timers of meteors and lightning run.
    bool timerMeteors = false, timerLightning = false;
};

}  // namespace skylob
