#pragma once

#include <string>

#include "base/PerSide.h"
#include "base/RoundEnd.h"
#include "battle/Landing.h"

namespace skylob {

/// What became of a shot, as the players are told.
struct ShotReport {
    int side = 0;              ///< who fired, or was to fire
    int speed = 0, angle = 0;  ///< as it was fired; 0 where nothing was fired for want of men
    Landing landing = Landing::Miss;
    bool landedLeft = false;  ///< in the left half of the field
    int beyond = 0;           ///< columns past the target, seen from the shooter; short: negative
    int killed = 0;           ///< by a near miss
    int deserted = 0;         ///< of the shooter's men, after it
    RoundEnd end = RoundEnd::None;

    bool wasFired() const { return speed != 0; }
};

/// The report in one line of plain text: "Ann, 442 at 75°: 27 columns short of Bob. 4 men deserted
/// Ann."
std::string reportText(const ShotReport& report, const PerSide<std::string>& names);

/// Where a shot came down, in two words: "27 short".
std::string landingInShort(const ShotReport& report);

}  // namespace skylob
