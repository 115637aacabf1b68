#pragma once

#include <cstdint>
#include <string_view>

#include "battle/FieldAnimation.h"
#include "battle/FieldPoint.h"
#include "battle/Landing.h"

namespace skylob {

/// The sound of a landing.
std::string_view landingSound(Landing landing);

/// A blast at the field point `at`, on the screen picture alone: it grows, each width held
/// twice for `delayCount` counts, and leaves a black dot. A hit, direct or on oneself, stands
/// higher than its landing point and grows larger. No ground is dug away.
void animateExplosion(FieldPoint at, Landing landing, FieldAnimation& animation,
                      std::int32_t delayCount);

}  // namespace skylob
