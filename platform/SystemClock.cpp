#include "platform/SystemClock.h"

#include <ctime>

namespace skylob {

DateTime SystemClock::now() const {
    using namespace std::chrono;
    const auto instant = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(instant);
    std::tm parts{};
    localtime_r(&seconds, &parts);
    const auto utc = floor<milliseconds>(instant).time_since_epoch();
    return DateTime{utc + std::chrono::seconds{parts.tm_gmtoff}};
}

}  // namespace skylob
