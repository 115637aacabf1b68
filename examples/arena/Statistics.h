#pragma once

#include <vector>

namespace skylob::arena {

/// An estimate and the ends of its interval of 95 % confidence.
struct Estimate {
    double value = 0, low = 0, high = 0;
};

/// The share of `count` in `total` (1 or more), with Wilson's interval.
Estimate share(int count, int total);

/// The mean with the interval of the normal distribution; `numbers` has two elements or more.
Estimate mean(const std::vector<int>& numbers);

/// The median of `total` numbers (1 or more), of which `numbers` are known and all others larger
/// than any of these. The interval's ends are themselves two of the numbers, by the binomial
/// distribution of how many lie below the median. Where one of the three is not known, it is -1.
Estimate median(std::vector<int> numbers, int total);

}  // namespace skylob::arena
