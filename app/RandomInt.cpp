#include "app/RandomInt.h"

#include <chrono>

namespace skylob {

int RandomInt(RandomSource& random, int low, int high) {
    const double spread = (high - low + 1) * random.next();
    // Rounded down, below 0 too, without a call: battlefields are made of such draws.
    const int part = static_cast<int>(spread);
    return (spread < part ? part - 1 : part) + low;
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
    const auto bits = static_cast<std::int64_t>((*m_engine)() >> 11);  // signed converts faster
    return static_cast<double>(bits) * kTwoToMinus53;
}

}  // namespace skylob
