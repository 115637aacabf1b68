#include "base/Scale.h"

#include <gtest/gtest.h>

#include "base/Motion.h"
#include "base/NullPorts.h"

namespace skylob::test {

TEST(Scale, IsAHundredUnlessTheMemoryHoldsOne) {
    MemoryWindows windows;
    EXPECT_EQ(recallScale(windows), 100);
    const std::pair<const char*, int> rows[] = {{"100", 100},
                                                {"125", 125},
                                                {"200", 200},
                                                {"137", 137},
                                                {"99", 100},
                                                {"201", 100},
                                                {"1e2", 100},
                                                {"150%", 100},
                                                {"-150", 100},
                                                {"", 100},
                                                {"999999999999999", 100},
                                                {" 150", 100},
                                                {"150.5", 100},
                                                {"0", 100}};
    for (const auto& [kept, scale] : rows) {
        windows.keep("Scale", kept);
        EXPECT_EQ(recallScale(windows), scale) << kept;
    }
    keepScale(windows, 175);
    EXPECT_EQ(windows.recall("Scale", ""), "175");
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
