#include "arena/Statistics.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace skylob::arena {

namespace {

constexpr double kNormalQuantile = 1.959964;  // of 97.5 %

}  // namespace

Estimate share(int count, int total) {
    const double n = total, p = count / n, z2 = kNormalQuantile * kNormalQuantile;
    const double centre = (p + z2 / (2 * n)) / (1 + z2 / n);
    const double half =
        kNormalQuantile * std::sqrt(p * (1 - p) / n + z2 / (4 * n * n)) / (1 + z2 / n);
    return {p, centre - half, centre + half};
}

Estimate mean(const std::vector<int>& numbers) {
    const auto n = static_cast<double>(numbers.size());
    double sum = 0, squares = 0;
    for (const int number : numbers) sum += number;
    const double value = sum / n;
    for (const int number : numbers) squares += (number - value) * (number - value);
    const double half = kNormalQuantile * std::sqrt(squares / (n - 1) / n);
    return {value, value - half, value + half};
}

Estimate median(std::vector<int> numbers, int total) {
    std::sort(numbers.begin(), numbers.end());
    // Ranks from 1 on; the lower of the two middle ones where there are two.
    const auto atRank = [&numbers](int rank) {
        const bool isKnown = rank >= 1 && rank <= static_cast<int>(numbers.size());
        return isKnown ? numbers[static_cast<std::size_t>(rank) - 1] : -1;
    };
    const double half = kNormalQuantile * std::sqrt(total) / 2;
    const int low = static_cast<int>(std::floor(total / 2.0 - half));
    const int high = static_cast<int>(std::ceil(total / 2.0 + half)) + 1;
    return {double(atRank((total + 1) / 2)), double(atRank(low)), double(atRank(high))};
}

}  // namespace skylob::arena
