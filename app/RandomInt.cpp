#include "app/RandomInt.h"

#include <chrono>
#include <cmath>

namespace skylob {

int RandomInt(RandomSource& random, int low, int high) {
    const double r = random.next();
    return static_cast<int>(std::floor((high - low + 1) * r)) + low;
}

SeededRandom::SeededRandom(std::optional<std::uint64_t> seed) {
    if (seed) m_engine.emplace(*seed);
}

double SeededRandom::next() {
    if (!m_engine) {
        const auto now = std::chrono::system_clock::now().time_since_epoch().count();
        m_engine.emplace(static_cast<std::uint64_t>(now));
    }
    constexpr double kTwoToMinus53 = 0x1p-53;
    return static_cast<double>((*m_engine)() >> 11) * kTwoToMinus53;
}

}  // namespace skylob
