#include "base/Scale.h"

#include <gtest/gtest.h>

#include "base/Motion.h"
#include "base/NullPorts.h"

namespace skylob::test {

TEST(Scale, IsAHundredUnlessTheMemoryHoldsOne) {
    MemoryWindows windows;
    for (const char* nonsense : {"", "99", "201", "150%", " 150", "wide"}) {
        windows.keep("Scale", nonsense);
        EXPECT_EQ(recallScale(windows), 100) << nonsense;
    }
    keepScale(windows, 175);
    EXPECT_EQ(recallScale(windows), 175);
}

TEST(Motion, IsReducedWhereTheDesktopAsksForIt) {
    const std::tuple<std::optional<unsigned>, std::optional<bool>, Motion> rows[] = {
        {{}, {}, Motion::Full},     {0, {}, Motion::Full},    {1, {}, Motion::Reduced},
        {2, {}, Motion::Full},      {{}, true, Motion::Full}, {{}, false, Motion::Reduced},
        {1, true, Motion::Reduced}, {0, false, Motion::Full}};
    for (const auto& [reduced, animations, motion] : rows)
        EXPECT_EQ(motionWanted({reduced, animations}), motion);
}

}  // namespace skylob::test
