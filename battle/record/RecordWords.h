#pragma once

#include <array>
#include <string_view>

#include "battle/BattleState.h"

/// The words of a recording and what they stand for, each list in the order of what it names.
namespace skylob {

inline constexpr std::string_view kRecordTitle = "skylob battle 1";
/// From kGoodSkill on.
inline constexpr std::array<std::string_view, 3> kLevelWords{"good", "fair", "poor"};
/// By Box.
inline constexpr std::array<std::string_view, 5> kBoxWords{"sound", "trajectory", "meteors",
                                                           "lightning", "wind"};
inline constexpr std::array<bool BattleState::*, 5> kTickedBoxes{
    &BattleState::SoundOn, &BattleState::ShowTrajectory, &BattleState::chkMeteors,
    &BattleState::chkLightning, &BattleState::chkWind};
/// By Landing.
inline constexpr std::array<std::string_view, 5> kLandingWords{"out-of-bounds", "self-hit",
                                                               "direct-hit", "near-miss", "miss"};
/// By whether a box is ticked.
inline constexpr std::array<std::string_view, 2> kTickWords{"off", "on"};

}  // namespace skylob
