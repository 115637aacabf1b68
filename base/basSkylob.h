#pragma once

#include <string>
#include <string_view>

#include "base/Motion.h"
#include "base/PerSide.h"

namespace skylob {

/// The program's title: window captions, message boxes and the settings store carry it.
inline constexpr std::string_view kProgramTitle = "Skylob";

/// The name that makes a side the computer's.
inline constexpr std::string_view kComputerName = "Computer";

/// The computer's levels of skill: basSkylob::SkillLevel.
inline constexpr int kGoodSkill = 4, kFairSkill = 5, kPoorSkill = 6;

/// The sizes of the battle screen: basSkylob::ScreenSize.
inline constexpr int kSmallScreen = 1, kNormalScreen = 2, kLargeScreen = 3;

/// What several screens share in one run. The program owns one of it and hands it on by
/// reference; sides are 1 (left) and 2 (right).
struct basSkylob {
    PerSide<std::string> PlayerName;  ///< UTF-8; only side 2 is ever played by the computer
    int SkillLevel = kFairSkill;      ///< the computer's aim: kGoodSkill, kFairSkill or kPoorSkill
    int NumRounds = 10;               ///< rounds in a set: 5, 10 or 20
    int GameSpeed = 50;               ///< animation speed, 1 (slow) to 99
    int ScreenSize = kNormalScreen;   ///< of the battle: kSmallScreen to kLargeScreen
    bool FadeStatus = false;          ///< the user wants screens to fade
    bool FadeActive = false;          ///< the screen that came or went last could fade
    Motion motion = Motion::Full;     ///< what moves for show; the desktop may tell it late

    std::string PlayerFileName = "Skylob.Data";  ///< in the working directory
    std::string OldDataFile = "Skylob.Dat";      ///< what it was called in earlier versions

    PerSide<int> RoundsWon;   ///< rounds won in this set
    PerSide<int> RoundKills;  ///< enemy men killed in this round
    PerSide<int> TotalKills;  ///< enemy men killed in this set
    PerSide<int> RoundShots;  ///< shells fired in this round

    int Winner = 0;          ///< the side that won the round just decided, 0 while it is open
    bool SelfHit = false;    ///< the last shell came down on its own piece
    bool DirectHit = false;  ///< the last shell hit the enemy
    bool NearMiss = false;   ///< the last shell came down beside the enemy
    bool SetOver = false;    ///< the last round of the set has been played

    bool isComputer(int side) const {
        return side == kRightSide && PlayerName[side] == kComputerName;
    }
};

}  // namespace skylob
