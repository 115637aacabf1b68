#pragma once

#include <cstdint>
#include <vector>

#include "arena/Players.h"

namespace skylob::arena {

/// Whom the computer plays, how well, and for how long.
struct Match {
    int skillLevel;  ///< the computer's, as in basSkylob
    bool wind;
    int sets;
    std::uint64_t seed;  ///< of the first set; each one after it has the next number
};

/// The rounds of a set: as many as a player gets who chooses nothing.
inline constexpr int kRoundsInASet = 10;

/// What the computer, side 2, has reached.
struct Score {
    int sets = 0, setsWon = 0;
    int rounds = 0, roundsWon = 0;
    /// The computer's shots in each round that it ended with a direct hit, and in those of them
    /// that were the first of their set.
    std::vector<int> shotsToHit, shotsToHitFirst;
};

/// Plays the match through.
Score play(const Match& match, Player& player);

}  // namespace skylob::arena
