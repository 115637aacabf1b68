#include "base/SeededRandom.h"

#include <chrono>

namespace skylob {

SeededRandom::SeededRandom(std::optional<std::uint64_t> seed) : m_seed{seed} {
    if (m_seed) m_engine.emplace(*m_seed);
}

std::uint64_t SeededRandom::seed() {
    if (!m_seed) {
        const auto now = std::chrono::system_clock::now().time_since_epoch().count();
        m_seed = static_cast<std::uint64_t>(now);
        m_engine.emplace(*m_seed);
    }
    return *m_seed;
}

double SeededRandom::next() {
    if (!m_engine) (void)seed();
    ++m_position;
    constexpr double kTwoToMinus53 = 0x1p-53;
    const auto bits = static_cast<std::int64_t>((*m_engine)() >> 11);  // signed converts faster
    return static_cast<double>(bits) * kTwoToMinus53;
}

void SeededRandom::moveTo(std::uint64_t position) {
    const std::uint64_t start = seed();
    if (position < m_position) {
        m_engine.emplace(start);
        m_position = 0;
    }
    m_engine->discard(position - m_position);
    m_position = position;
}

}  // namespace skylob
