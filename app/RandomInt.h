#pragma once

#include <cstdint>
#include <optional>
#include <random>

namespace skylob {

/// Where chance comes from. Rules draw from it in a fixed order, one statement a draw.
class RandomSource {
  public:
    virtual ~RandomSource() = default;

    /// The next r, uniform in [0, 1) and never 1.
    virtual double next() = 0;
};

/// A whole number uniformly drawn from low..high: the integer part of (high - low + 1) * r plus
/// low. The bounds are applied as they are written, also when low is above high: the falling
/// slopes of the battlefield are made that way (see SlopeStep).
int RandomInt(RandomSource& random, int low, int high);

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
