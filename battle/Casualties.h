#pragma once

#include "base/RandomInt.h"
#include "base/basSkylob.h"
#include "battle/BattleState.h"

namespace skylob {

/// Credits the last shell of state.Shooter as SelfHit, DirectHit and NearMiss say: kills, men left
/// after a near miss, and the Winner where the round is decided.
void creditShot(basSkylob& shared, BattleState& state);

/// 1 to 15 of the shooter's men leave, as far as there are any. They are nobody's kills.
/// Returns how many have left.
int desert(BattleState& state, RandomSource& random);

}  // namespace skylob
