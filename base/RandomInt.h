#pragma once

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

}  // namespace skylob
