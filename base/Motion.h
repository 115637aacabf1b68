#pragma once

#include <optional>

namespace skylob {

/// What moves or flashes for show alone: all of it, or none, for those whom it makes unwell.
enum class Motion { Full, Reduced };

/// What a desktop has to say about motion; it may be silent on either.
struct MotionSettings {
    std::optional<unsigned> reducedMotion;  ///< 1: to be reduced; newer desktops have it
    std::optional<bool> enableAnimations;   ///< what others have instead
};

Motion motionWanted(const MotionSettings& settings);

}  // namespace skylob
