#include <gtest/gtest.h>

#include "base/Settings.h"
#include "tests/support/Fakes.h"

namespace skylob::test {

TEST(Settings, MakeSenseOfAnyText) {
    // Game speed, rounds, screen size; a flag that is on by default and one that is off.
    const std::pair<const char*, std::array<int, 5>> rows[] = {
        {"", {50, 10, 2, 1, 0}},       {"0", {50, 10, 2, 0, 0}},    {"1", {1, 5, 1, 1, 1}},
        {"2", {2, 10, 2, 1, 0}},       {"3", {3, 20, 3, 1, 0}},     {" 1 ", {1, 5, 1, 1, 1}},
        {"99", {99, 10, 2, 1, 0}},     {"100", {99, 10, 2, 1, 0}},  {"-7", {1, 10, 2, 1, 0}},
        {"0.4", {50, 10, 2, 1, 0}},    {"98.5", {98, 10, 2, 1, 0}}, {"1e300", {99, 10, 2, 1, 0}},
        {"60 mph", {50, 10, 2, 1, 0}}, {"nan", {50, 10, 2, 1, 0}}};
    for (const auto& [text, expected] : rows) {
        MemorySettings store;
        for (const char* key : {"GameSpeed", "NumRounds", "ScreenSize", "Flag"})
            store.save(key, text);
        const int rounds = settings::roundsForChoice(settings::readRoundsChoice(store));
        EXPECT_EQ(
            (std::array<int, 5>{
                settings::readGameSpeed(store), rounds, settings::readScreenSize(store),
                settings::readFlag(store, "Flag", true), settings::readFlag(store, "Flag", false)}),
            expected)
            << text;
    }
}

TEST(Settings, FadeOnlyIfTheStoreSaysTrue) {
    MemorySettings store;
    EXPECT_FALSE(settings::readFadeStatus(store));
    const std::pair<const char*, bool> rows[] = {{" TRUE ", true}, {"-1", true}, {"False", false},
                                                 {"0", false},     {"", false},  {"yes", false}};
    for (const auto& [stored, on] : rows) {
        store.save("FadeStatus", stored);
        EXPECT_EQ(settings::readFadeStatus(store), on) << stored;
    }
}

}  // namespace skylob::test
