#pragma once

#include <cstdint>
#include <optional>
#include <random>

#include "base/RandomInt.h"

namespace skylob {

/// The program's generator: 64-bit Mersenne Twister, the top 53 bits of each output as r.
/// With a seed the run is repeatable on every machine; without one the first draw seeds it
/// from the clock.
class SeededRandom final : public RandomSource {
  public:
    explicit SeededRandom(std::optional<std::uint64_t> seed = std::nullopt) : m_seed{seed} {}

    double next() override;

    /// The seed that makes the same numbers again.
    std::uint64_t seed();

    /// How many numbers have been drawn.
    std::uint64_t position() const { return m_position; }

    /// Goes to where `position` numbers have been drawn, back or ahead. Ahead, it takes a few
    /// nanoseconds for each number that is left out.
    void moveTo(std::uint64_t position);

  private:
    void start();

    std::optional<std::uint64_t> m_seed;
    std::optional<std::mt19937_64> m_engine;
    std::uint64_t m_position = 0;
};

}  // namespace skylob
