#include "base/SeededRandom.h"

#include <chrono>

namespace skylob {

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
