#include "battle/Landing.h"

#include <cstdlib>

#include "base/Rounding.h"

namespace skylob {

Landing classifyLanding(int x, int shooterX, int targetX) {
    // Quirk "narrow field": a shell can hit the ground in the columns left out here.
    if (x < 5 || x > 995) return Landing::OutOfBounds;
    // Quirk "spared shooter": at a distance of 5 it is not hit, its target is.
    if (std::abs(x - shooterX) < 5) return Landing::SelfHit;
    const int distance = std::abs(x - targetX);
    if (distance < 6) return Landing::DirectHit;
    if (distance < 14) return Landing::NearMiss;
    return Landing::Miss;
}

int nearMissKills(int menLeft, int distance) {
    // Quirk "last man standing": of one man left this is never more than 0.
    return roundToNearest((menLeft + 1.0) / (distance + 1));
}

}  // namespace skylob
