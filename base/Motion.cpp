#include "base/Motion.h"

namespace skylob {

Motion motionWanted(const MotionSettings& settings) {
    constexpr unsigned kReduce = 1;
    const bool reduced = settings.reducedMotion ? *settings.reducedMotion == kReduce
                                                : !settings.enableAnimations.value_or(true);
    return reduced ? Motion::Reduced : Motion::Full;
}

}  // namespace skylob
