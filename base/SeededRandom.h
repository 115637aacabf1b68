#pragma once

#include <cstdint>
#include <optional>

#include "base/MersenneTwister.h"
#include "base/RandomInt.h"

namespace skylob {

/// The program's generator: 64-bit Mersenne Twister, the top 53 bits of each output as r.
/// With a seed the run is repeatable on every machine; without one the first draw seeds it
/// from the clock.
class SeededRandom final : public RandomSource {
  public:
    explicit SeededRandom(std::optional<std::uint64_t> seed = std::nullopt) : m_seed{seed} {}

    double next() override {
        if (m_next == m_numbers.size()) makeNumbers();
        constexpr double kTwoToMinus53 = 0x1p-53;
        // A signed number is converted faster.
        const auto bits = static_cast<std::int64_t>(m_numbers[m_next++] >> 11);
        return static_cast<double>(bits) * kTwoToMinus53;
    }

    /// The seed that makes the same numbers again.
    std::uint64_t seed();

    /// How many numbers have been drawn.
    std::uint64_t position() const { return m_made - (MersenneTwister::kBlock - m_next); }

    /// Goes to where `position` numbers have been drawn, back or ahead. Ahead, it takes a few
    /// nanoseconds for each number that is left out.
    void moveTo(std::uint64_t position);

  private:
    void makeNumbers();

    std::optional<std::uint64_t> m_seed;
    std::optional<MersenneTwister> m_twister;
    MersenneTwister::Block m_numbers;              ///< the last ones made
    std::size_t m_next = MersenneTwister::kBlock;  ///< the place of the next one among them
    std::uint64_t m_made = 0;                      ///< how many, together
};

}  // namespace skylob
