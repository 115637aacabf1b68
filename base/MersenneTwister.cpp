#include "base/MersenneTwister.h"

namespace skylob {

namespace {

constexpr std::size_t kLast = MersenneTwister::kBlock - 1, kMiddle = MersenneTwister::kBlock / 2;

/// What takes a state's place, from it, the next one and one that is half a block away.
std::uint64_t twisted(std::uint64_t state, std::uint64_t next, std::uint64_t distant) {
    constexpr std::uint64_t kUpperBits = ~std::uint64_t{0} << 31, kMatrix = 0xB5026F5AA96619E9;
    const std::uint64_t joined = (state & kUpperBits) | (next & ~kUpperBits);
    return distant ^ joined >> 1 ^ ((0 - (joined & 1)) & kMatrix);
}

std::uint64_t tempered(std::uint64_t state) {
    state ^= state >> 29 & 0x5555555555555555;
    state ^= state << 17 & 0x71D67FFFEDA60000;
    state ^= state << 37 & 0xFFF7EEE000000000;
    return state ^ state >> 43;
}

}  // namespace

MersenneTwister::MersenneTwister(std::uint64_t seed) {
    m_state[0] = seed;
    for (std::size_t i = 1; i < kBlock; ++i) {
        const std::uint64_t last = m_state[i - 1];
        m_state[i] = 6364136223846793005 * (last ^ last >> 62) + i;
    }
}

void MersenneTwister::twist() {
    auto& s = m_state;
    for (std::size_t i = 0; i < kMiddle; ++i) s[i] = twisted(s[i], s[i + 1], s[i + kMiddle]);
    for (std::size_t i = kMiddle; i < kLast; ++i) s[i] = twisted(s[i], s[i + 1], s[i - kMiddle]);
    s[kLast] = twisted(s[kLast], s[0], s[kLast - kMiddle]);
}

void MersenneTwister::fill(Block& numbers) {
    twist();
    for (std::size_t i = 0; i < kBlock; ++i) numbers[i] = tempered(m_state[i]);
}

}  // namespace skylob
