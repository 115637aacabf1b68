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
inline int RandomInt(RandomSource& random, int low, int high) {
    const int choices = high - low + 1;
    const double spread = choices * random.next();
    // Rounded down, below 0 too, without a call: battlefields are made of such draws.
    const int part = static_cast<int>(spread);
    return (choices < 0 && spread < part ? part - 1 : part) + low;
}

}  // namespace skylob
