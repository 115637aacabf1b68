#include "base/SeededRandom.h"

#include <gtest/gtest.h>

namespace skylob::test {

TEST(SeededRandom, GoesToAnyPosition) {
    SeededRandom random{5489};  // of which the standard tells the ten thousandth number
    constexpr double kTenThousandth = static_cast<double>(9981545732273789042u >> 11) * 0x1p-53;
    for (const std::uint64_t from : {0u, 9'998u, 9'999u, 20'000u}) {
        random.moveTo(from);
        EXPECT_EQ(random.position(), from);
        random.moveTo(9'999);
        EXPECT_EQ(random.next(), kTenThousandth);
        EXPECT_EQ(random.position(), 10'000u);
    }
    SeededRandom fromClock;
    const double first = fromClock.next();
    EXPECT_EQ(SeededRandom{fromClock.seed()}.next(), first);
}

}  // namespace skylob::test
