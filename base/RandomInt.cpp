#include "base/RandomInt.h"

namespace skylob {

int RandomInt(RandomSource& random, int low, int high) {
    const double spread = (high - low + 1) * random.next();
    // Rounded down, below 0 too, without a call: battlefields are made of such draws.
    const int part = static_cast<int>(spread);
    return (spread < part ? part - 1 : part) + low;
}

}  // namespace skylob
