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

void SeededRandom::makeNumbers() {
    if (!m_twister) m_twister.emplace(seed());
    m_twister->fill(m_numbers);
    m_made += m_numbers.size();
    m_next = 0;
}

void SeededRandom::moveTo(std::uint64_t position) {
    if (position < this->position()) {
        m_twister.emplace(seed());
        m_made = 0;
        m_next = m_numbers.size();
    }
    while (m_made < position) makeNumbers();
    m_next = static_cast<std::size_t>(m_numbers.size() - (m_made - position));
}

}  // namespace skylob
