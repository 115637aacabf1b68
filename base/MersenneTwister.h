#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace skylob {

/// The 64-bit Mersenne Twister of the C++ standard, number for number. It makes them in blocks and
/// without a branch, several at once where the processor can.
class MersenneTwister {
  public:
    static constexpr std::size_t kBlock = 312;
    using Block = std::array<std::uint64_t, kBlock>;

    explicit MersenneTwister(std::uint64_t seed);

    /// The next so many numbers.
    void fill(Block& numbers);

  private:
    void twist();

    Block m_state;
};

}  // namespace skylob
