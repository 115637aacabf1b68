#include "base/RoundEnd.h"

namespace skylob {

RoundEnd roundEndOf(const basSkylob& shared) {
    if (shared.Winner == 0) return RoundEnd::None;
    if (shared.SelfHit) return RoundEnd::SelfHit;
    if (shared.DirectHit) return RoundEnd::DirectHit;
    // Forgotten at the beginning of every turn, so it is the deciding shell's.
    return shared.NearMiss ? RoundEnd::NearMiss : RoundEnd::NoMen;
}

}  // namespace skylob
