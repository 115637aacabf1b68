#include "base/SeededRandom.h"

#include <chrono>

namespace skylob {

double SeededRandom::next() {
    if (!m_engine) start();
    ++m_position;
    constexpr double kTwoToMinus53 = 0x1p-53;
    // A signed number is converted faster.
    const auto bits = static_cast<std::int64_t>((*m_engine)() >> 11);
    return static_cast<double>(bits) * kTwoToMinus53;
}

std::uint64_t SeededRandom::seed() {
    if (!m_seed) {
        const auto now = std::chrono::system_clock::now().time_since_epoch().count();
        m_seed = static_cast<std::uint64_t>(now);
    }
    return *m_seed;
}

void SeededRandom::start() {
    m_engine.emplace(seed());
    m_position = 0;
}

void SeededRandom::moveTo(std::uint64_t position) {
    if (!m_engine || position < m_position) start();
    m_engine->discard(position - m_position);
    m_position = position;
}

}  // namespace skylob
