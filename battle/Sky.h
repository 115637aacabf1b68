#pragma once

#include "base/RandomInt.h"
#include "battle/AmbientEffect.h"
#include "battle/BattleState.h"
#include "battle/FieldAnimation.h"

namespace skylob {

/// Where meteors and storms are: over the field of `state`, seen in `animation`, until `effect`
/// says that a command has come in. It only refers to its parts, which must outlive it.
struct Sky {
    BattleState& state;
    FieldAnimation& animation;
    RandomSource& random;
    AmbientEffect& effect;
};

}  // namespace skylob
