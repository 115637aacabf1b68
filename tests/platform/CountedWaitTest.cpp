#include "platform/CountedWait.h"

#include <gtest/gtest.h>

namespace skylob::test {

using namespace std::literals;

TEST(CountedWait, LastsHalfANanosecondForEachCount) {
    const auto begin = std::chrono::steady_clock::now();
    CountedWait wait;
    wait.start();
    wait.run(40'000'000);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 20ms);
}

}  // namespace skylob::test
