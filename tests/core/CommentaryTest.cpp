#include "players/Commentary.h"

#include <gtest/gtest.h>

#include "tests/support/Fakes.h"
#include "tests/support/FileFakes.h"

namespace skylob::test {

namespace {

struct Commentary : testing::Test {
    Commentary() { strings.addLines(bytesOf(SKYLOB_RESOURCES "/strings/commentary.txt")); }

    std::optional<std::string> draw(double r) {
        ScriptedRandom random{{r}};
        return drawRemark(shared, strings, random);
    }

    /// The block that fits goes from the one remark to the other, and every number in it has one.
    void expectBlock(const std::string& first, const std::string& last, int size) {
        EXPECT_EQ(draw(0), first);
        EXPECT_EQ(draw(0.9999999), last);
        for (int i = 0; i < size; ++i) EXPECT_NE(draw((i + 0.5) / size), "");
    }

    basSkylob shared;
    StringTable strings;
};

TEST_F(Commentary, FitsTheWinnerAndTheShots) {
    shared.PlayerName = {"Ann", "Bob"};
    shared.Winner = 2;
    shared.RoundShots = {9, 0};
    ScriptedRandom none{{}};
    EXPECT_EQ(drawRemark(shared, strings, none), std::nullopt);
    shared.RoundShots[2] = 1;
    expectBlock("Wow! Home run!", "Well, sizzle my CPU!", 14);
    shared.RoundShots[2] = 2;
    expectBlock("Well, you're just REALLY hot, huh?", "The blood is everywhere!", 19);
    shared.RoundShots[2] = 3;
    expectBlock("I'm looking for psychological significance here...",
                "C'mon, now... you can get better use out of my CPU than this!", 22);
    for (const int shots : {4, 40}) {
        shared.RoundShots[2] = shots;
        expectBlock("I know a lobotomy patient who plays like you...",
                    "I've seen snails with better trigger fingers...", 23);
    }
    shared.PlayerName[2] = "Computer";
    expectBlock("Man, am I hot or WHAT?!", "Are you seeking philosophical wisdom through failure?",
                35);
    shared.Winner = 1;
    expectBlock("Well, I felt sorry for you, so...",
                "Careful! Don't get too big for your britches!", 20);
    shared.SelfHit = true;
    expectBlock("You just shot yourself. (Thought you'd want to know...)",
                "Take some medication and chill out!", 24);
    shared.SetOver = true;
    expectBlock("Good set, you guys!", "Don't you want to play one more set?", 12);
}

}  // namespace

}  // namespace skylob::test
