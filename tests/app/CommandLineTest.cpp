#include <gtest/gtest.h>

#include "app/CommandLine.h"
#include "app/PlainStart.h"
#include "base/NullPorts.h"

namespace skylob::test {

static CommandLine parse(std::initializer_list<std::string_view> arguments) {
    return parseCommandLine(std::span{arguments.begin(), arguments.size()});
}

TEST(CommandLine, TakesItsOptionsAndRefusesTheRest) {
    using Request = CommandLine::Request;
    EXPECT_EQ(parse({}).request, Request::Play);
    EXPECT_EQ(parse({"--help"}).request, Request::Help);
    EXPECT_EQ(parse({"--seed", "5", "--version"}).request, Request::Version);
    EXPECT_EQ(parse({"--seed", "18446744073709551615"}).seed, 18446744073709551615u);
    EXPECT_EQ(parse({"--data-dir", "my folder"}).dataDir, "my folder");
    EXPECT_TRUE(parse({"--user-data"}).userData);
    EXPECT_FALSE(parse({}).userData || parse({}).plain);
    EXPECT_TRUE(parse({"--plain", "--seed", "5"}).plain);
    for (const auto& refused : {parse({"--seed"}), parse({"--seed", "-1"}), parse({"--seed", "1x"}),
                                parse({"--data-dir", ""}), parse({"--fast"}), parse({"file"}),
                                parse({""}), parse({"--user-data", "--data-dir", "x"})})
        EXPECT_EQ(refused.request, Request::Refused);
}

TEST(PlainStart, PutsOutTheLightUntilThePlayerWantsItOtherwise) {
    MemoryWindows store;
    store.keep(kEffectsKey, "1");
    store.keep("Place", "5,5");
    EXPECT_EQ((PlainStart{store, {}}.recall(kEffectsKey, "0")), "1");
    PlainStart plain{store, parse({"--plain"})};
    EXPECT_EQ(plain.recall("Place", ""), "5,5");
    plain.keep("Place", "6,6");
    EXPECT_EQ(plain.recall(kEffectsKey, "1"), "0");
    EXPECT_EQ(store.recall(kEffectsKey, "0"), "1");
    plain.keep(kEffectsKey, "1");
    EXPECT_EQ(plain.recall(kEffectsKey, "0"), "1");
}

}  // namespace skylob::test
