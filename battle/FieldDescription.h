#pragma once

#include <string>

#include "base/basSkylob.h"
#include "battle/BattleState.h"

namespace skylob {

/// The battlefield in words, for whoever cannot see it: turn, wind, both pieces with their men, the
/// mountain, and in a second sentence each side's last shot of the round. Who plays the computer is
/// "you". When the round is decided it says no more than who has won it; before the first turn it
/// is empty. UTF-8, without line breaks.
///
/// The wording does not change from turn to turn, so that it is quickly heard, and programs can
/// read it:
/// "Your turn, wind 30 to the right: your piece with 92 men at column 163, height 105; Computer's
/// piece with 100 men at column 863, height 28; the mountain between reaches 720 at column 550.
/// Your last shell with speed 442 and angle 75 fell 27 columns short."
std::string fieldDescription(const BattleState& state, const basSkylob& shared);

/// The wind box in words: "Wind 30 to the right", or "Wind" when there is none.
std::string windInWords(int wind);

}  // namespace skylob
