#include <gtest/gtest.h>

#include "tests/support/SkyRig.h"

namespace skylob::test {

struct AmbientEffects : testing::TestWithParam<Effect>, SkyRig {
    void begin() { SkyRig::begin(GetParam()); }

    /// Ticks both timers; chance would be in their favour, but is not even asked.
    void expectNothingFromTicks() {
        const int draws = random.draws();
        for (const Effect effect : {kMeteor, kStorm}) SkyRig::begin(effect);
        EXPECT_EQ(random.draws(), draws);
        random.script({});
    }
};
INSTANTIATE_TEST_SUITE_P(Both, AmbientEffects, testing::Values(kMeteor, kStorm));

TEST_P(AmbientEffects, WaitForTwelveWholeSecondsWithoutActivity) {
    clock.time += std::chrono::seconds{88};
    aims().setAngle(2, 33);
    clock.time += std::chrono::milliseconds{11'999};
    expectNothingFromTicks();
    clock.time -= std::chrono::hours{1};
    expectNothingFromTicks();
    clock.time += std::chrono::hours{1} + std::chrono::milliseconds{1};
    for (const int often : {1, 2}) {  // it is no activity itself
        begin();
        EXPECT_GT(yields(), often * 400);
    }
}

TEST_P(AmbientEffects, KeepQuietWhileTheBattleIsBusy) {
    int looks = 0;
    const auto look = [&] {
        ++looks;
        clock.time += std::chrono::hours{1};
        expectNothingFromTicks();
    };
    view.onShowField = look;
    fire({100, 90});  // a self hit: round 2, where leaving asks
    view.onShowField = {};
    boxes.answers = {BoxAnswer::No, BoxAnswer::Yes};
    boxes.onShow = look;
    ASSERT_GT(std::exchange(looks, 0), 40);
    battle.cmdQuit_Click();
    passTime();
    atYield(1, look);
    begin();
    EXPECT_EQ(looks, 2);
    battle.cmdQuit_Click();
    look();
    EXPECT_TRUE(view.isClosed());
}

/// Gives commands by their letters: piece, shoot, quit, untick meteors or lightning, tick
/// Lightning; a bar is a shot that comes to nothing at the next yield.
static void give(SkyRig& rig, std::string_view commands) {
    for (const char command : commands) {
        if (command == 'p') rig.battle.FieldPiece_Click();
        if (command == 's') rig.battle.cmdShoot_Click();
        if (command == 'q') rig.battle.cmdQuit_Click();
        if (command == 'm') rig.options().chkMeteors_Click(false);
        if (command == 'l') rig.options().chkLightning_Click(false);
        if (command == 'L') rig.options().chkLightning_Click(true);
        if (command == '|')
            rig.atYield(1, [&rig] {
                rig.battle.cmdShoot_Click();
                EXPECT_TRUE(rig.battle.shots().empty());
            });
    }
}

/// Shots, whether left, boxes, timers, saved option.
static std::string outcome(const SkyRig& rig) {
    return std::to_string(rig.battle.shots().size()) + (rig.view.isClosed() ? " left " : " ") +
           rig.ticked() + " " + rig.timers() + rig.settings.get("MeteorsSetting", "");
}

TEST_P(AmbientEffects, EndBeforeACommandRuns) {
    const std::pair<const char*, std::string> commands[] = {
        {"ps", "1 TML ML"},     {"sq", "1 left TML 1"}, {"qs", "0 left TML 1"},
        {"mq", "0 left TL M0"}, {"ls|L", "1 TML ML"},   {"m", "0 TL ML"},
        {"l", "0 TM M"}};
    for (const int yield : {1, 2, 102, 400}) {
        for (const auto& command : commands) {
            SCOPED_TRACE(testing::Message() << command.first << ", " << yield);
            SkyRig rig;
            const auto before = rig.pixels();
            rig.atYield(yield, [&] {
                const std::string during = outcome(rig);
                give(rig, command.first);
                EXPECT_EQ(outcome(rig), during);
                // What shows the field next is the tidying up, and then the shot.
                rig.view.onShowField = [&, shown = 0]() mutable {
                    EXPECT_EQ(rig.battle.effectIsRunning(), ++shown == 1);
                    if (shown == 1) {
                        EXPECT_TRUE(rig.pixels() == before);
                    }
                };
            });
            rig.begin(GetParam());
            EXPECT_EQ(outcome(rig), command.second);
            EXPECT_FALSE(rig.battle.effectIsRunning());
            EXPECT_EQ(std::ranges::count(rig.log, "wait 125000"), 0);
            EXPECT_LE(rig.yields(), yield + 2);  // a box and quit have one of their own
        }
    }
}

TEST_P(AmbientEffects, LeaveNothingBehindWhenTheyFail) {
    atYield(9, [&] {
        battle.cmdQuit_Click();
        throw std::runtime_error{"no more sky"};
    });
    EXPECT_THROW(begin(), std::runtime_error);
    EXPECT_FALSE(view.isClosed());
    begin();
    EXPECT_GT(yields(), 400);  // all of it
    battle.cmdQuit_Click();
    EXPECT_TRUE(view.isClosed());
}

TEST_P(AmbientEffects, LetTheFieldBeDrawnAnewForAnotherDisplay) {
    const auto before = pixels();
    for (const int size : {500, 1000}) {
        atYield(30, [&] {
            picture().resize(size, size, 1);
            battle.replotField();
        });
        begin();
        picture().refresh();
    }
    EXPECT_TRUE(pixels() == before);
}

}  // namespace skylob::test
