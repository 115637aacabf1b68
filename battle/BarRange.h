#pragma once

#include <algorithm>

#include "base/Volume.h"

namespace skylob {

/// A scroll bar's ends, and how far the Page keys move it; the arrow keys move every bar by 1. A
/// bar begins at its minimum.
struct BarRange {
    int minimum, maximum, largeChange;

    /// `value`, or the nearer end where it lies outside.
    constexpr int held(int value) const { return std::clamp(value, minimum, maximum); }
};

inline constexpr BarRange kSpeedRange{100, 999, 10};
inline constexpr BarRange kAngleRange{10, 90, 5};
inline constexpr BarRange kGameSpeedRange{1, 99, 10};
inline constexpr BarRange kVolumeRange{0, kFullVolume, 10};  ///< in percent

}  // namespace skylob
