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
    explicit SeededRandom(std::optional<std::uint64_t> seed = std::nullopt);

    double next() override;

  private:
    std::optional<std::mt19937_64> m_engine;
};

}  // namespace skylob
