#pragma once

#include "base/basSkylob.h"

namespace skylob {

/// Why a round is over.
enum class RoundEnd {
    None,       ///< it is not
    DirectHit,  ///< the winner's shell hit the enemy
    SelfHit,    ///< the loser's shell hit its own piece
    NearMiss,   ///< the winner's shell came down beside an enemy without men
    NoMen,      ///< the loser was to shoot and had no men
};

/// Why the round that `shared` tells of is over. It follows from what the last shell has done.
RoundEnd roundEndOf(const basSkylob& shared);

}  // namespace skylob
