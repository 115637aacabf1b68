#include "base/SeededRandom.h"

#include <chrono>

namespace skylob {

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
