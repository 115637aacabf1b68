#pragma once

#include <cmath>
#include <cstdint>

namespace skylob {

/// The nearest whole number; a value exactly between two goes to the even one. The result must
/// fit into 32 bits.
inline std::int32_t roundToNearest(double value) {
    // nearbyint follows the current rounding mode, which nobody in this program changes from
    // its default, ties to even.
    return static_cast<std::int32_t>(std::nearbyint(value));
}

}  // namespace skylob
