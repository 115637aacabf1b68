#pragma once

#include <cstdint>

namespace skylob {

/// The nearest whole number; a value exactly between two goes to the even one. The result must
/// fit into 32 bits.
constexpr std::int32_t roundToNearest(double value) {
    // So large a sum has no room for a fraction and is rounded in just this way, as long as nobody
    // changes the rounding mode. It takes no call, unlike the library's nearbyint.
    constexpr double kNoFraction = 0x1.8p52;
    return static_cast<std::int32_t>((value + kNoFraction) - kNoFraction);
}

}  // namespace skylob
