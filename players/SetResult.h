#pragma once

#include <string>

#include "base/basSkylob.h"

namespace skylob {

/// A side's score of a set: 7 points for each round won and 1 for every 3 enemy men killed.
int SetScore(const basSkylob& shared, int side);

/// The same as it is reckoned, UTF-8: "5 × 7 + 500 ÷ 3 = 201".
std::string setReckoning(const basSkylob& shared, int side);

/// The side that wins the set by its score; a tie goes to side 2.
int setWinner(const basSkylob& shared);

}  // namespace skylob
