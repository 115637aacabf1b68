#include "base/Clock.h"

namespace skylob {

int secondsOf(DateTime time) {
    const auto minute = std::chrono::floor<std::chrono::minutes>(time);
    return static_cast<int>(std::chrono::floor<std::chrono::seconds>(time - minute).count());
}

}  // namespace skylob
