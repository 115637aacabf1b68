#include "base/Pacer.h"

#include "base/Rounding.h"

namespace skylob {

std::int32_t waitMilliseconds(float seconds) {
    return roundToNearest(static_cast<double>(seconds) * 1000.0);
}

}  // namespace skylob
