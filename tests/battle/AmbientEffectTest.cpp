#include "battle/AmbientEffect.h"

#include <gtest/gtest.h>

#include "tests/support/SkyRig.h"

namespace skylob::test {

using Effect = void (Battle::*)();
constexpr Effect kMeteor = &Battle::timerMeteors_Timer, kStorm = &Battle::timerLightning_Timer;

/// Chance in favour of an effect; the rest as the rig has it.
static void begin(SkyRig& rig, Effect tick) {
    rig.random.script({0});
    (rig.battle.*tick)();
}

/// Ticks both timers; chance would be in their favour, but is not even asked.
static void expectNothingFromTicks(SkyRig& rig) {
    rig.random.script({0, 0});
    const int draws = rig.random.draws();
    rig.battle.timerMeteors_Timer();
    rig.battle.timerLightning_Timer();
    EXPECT_EQ(rig.random.draws(), draws);
    rig.random.script({});
}

TEST(AmbientEffects, WaitForTwelveWholeSecondsWithoutActivity) {
    for (const Effect effect : {kMeteor, kStorm}) {
        SkyRig rig;
        rig.clock.time += std::chrono::seconds{88};
        rig.aims().setAngle(2, 33);
        rig.clock.time += std::chrono::milliseconds{11'999};
        expectNothingFromTicks(rig);
        rig.clock.time -= std::chrono::hours{1};
        expectNothingFromTicks(rig);
        rig.clock.time += std::chrono::hours{1} + std::chrono::milliseconds{1};
        begin(rig, effect);
        EXPECT_GT(rig.yields(), 400);
        begin(rig, effect);  // it was no activity itself
        EXPECT_GT(rig.yields(), 800);
    }
}

TEST(AmbientEffects, KeepQuietWhileTheBattleIsBusy) {
    SkyRig rig;
    int looks = 0;
    const auto look = [&] {
        ++looks;
        rig.clock.time += std::chrono::hours{1};
        expectNothingFromTicks(rig);
    };
    rig.view.onShowField = look;
    rig.fire({100, 90});  // a self hit: round 2, where leaving asks
    rig.view.onShowField = {};
    ASSERT_GT(looks, 40);
    looks = 0;
    rig.passTime();
    rig.boxes.answers = {BoxAnswer::No, BoxAnswer::Yes};
    rig.boxes.onShow = look;
    rig.battle.cmdQuit_Click();
    rig.passTime();
    for (const Effect effect : {kMeteor, kStorm}) {
        rig.atYield(1, look);
        begin(rig, effect);
    }
    EXPECT_EQ(looks, 3);
    rig.battle.cmdQuit_Click();
    look();
    EXPECT_TRUE(rig.view.isClosed());
}

TEST(AmbientEffects, EndBeforeACommandRuns) {
    struct Command {
        const char* name;
        std::function<void(SkyRig&)> give;
        std::function<bool(SkyRig&)> hasRun;
    };
    const Command commands[] = {
        {"shoot with a double click",
         [](SkyRig& rig) { rig.battle.FieldPiece_Click(), rig.battle.cmdShoot_Click(); },
         [](SkyRig& rig) { return rig.battle.shots().size() == 1 && !rig.view.isClosed(); }},
        {"shoot, then quit",
         [](SkyRig& rig) { rig.battle.cmdShoot_Click(), rig.battle.cmdQuit_Click(); },
         [](SkyRig& rig) { return rig.battle.shots().size() == 1 && rig.view.isClosed(); }},
        {"quit, then shoot",
         [](SkyRig& rig) { rig.battle.cmdQuit_Click(), rig.battle.cmdShoot_Click(); },
         [](SkyRig& rig) { return rig.battle.shots().empty() && rig.view.isClosed(); }},
        {"untick meteors, then quit",
         [](SkyRig& rig) { rig.options().chkMeteors_Click(false), rig.battle.cmdQuit_Click(); },
         [](SkyRig& rig) {
             return rig.view.isClosed() && rig.settings.get("MeteorsSetting", "") == "0";
         }},
        {"untick and tick lightning, shoot in the yield between",
         [](SkyRig& rig) {
             rig.options().chkLightning_Click(false);
             rig.battle.cmdShoot_Click();
             rig.atYield(1, [&rig] {
                 rig.battle.cmdShoot_Click();
                 EXPECT_TRUE(rig.battle.shots().empty());
             });
             rig.options().chkLightning_Click(true);
         },
         [](SkyRig& rig) { return rig.battle.shots().size() == 1 && rig.panel().chkLightning; }},
        {"untick meteors", [](SkyRig& rig) { rig.options().chkMeteors_Click(false); },
         [](SkyRig& rig) { return !rig.panel().chkMeteors && rig.panel().timerMeteors; }},
        {"untick lightning", [](SkyRig& rig) { rig.options().chkLightning_Click(false); },
         [](SkyRig& rig) { return !rig.panel().chkLightning && !rig.panel().timerLightning; }},
    };
    for (const Effect effect : {kMeteor, kStorm}) {
        for (const int yield : {1, 2, 102, 400}) {
            for (const Command& command : commands) {
                SCOPED_TRACE(testing::Message()
                             << (effect == kMeteor) << ", " << command.name << ", " << yield);
                SkyRig rig;
                const auto before = rig.pixels();
                rig.atYield(yield, [&] {
                    command.give(rig);
                    EXPECT_FALSE(command.hasRun(rig));
                    // What shows the field next is the tidying up, and then the shot.
                    rig.view.onShowField = [&, shown = 0]() mutable {
                        EXPECT_EQ(rig.battle.effectIsRunning(), ++shown == 1);
                        EXPECT_TRUE(shown > 1 || rig.pixels() == before);
                    };
                });
                begin(rig, effect);
                EXPECT_TRUE(command.hasRun(rig));
                EXPECT_FALSE(rig.battle.effectIsRunning());
                EXPECT_EQ(std::count(rig.log.begin(), rig.log.end(), "wait 125000"), 0);
                EXPECT_LE(rig.yields(), yield + 2);  // a box and quit have one of their own
            }
        }
    }
}

TEST(AmbientEffects, LeaveNothingBehindWhenTheyFail) {
    for (const Effect effect : {kMeteor, kStorm}) {
        SkyRig rig;
        rig.atYield(9, [&] {
            rig.battle.cmdQuit_Click();
            throw std::runtime_error{"no more sky"};
        });
        EXPECT_THROW(begin(rig, effect), std::runtime_error);
        EXPECT_FALSE(rig.view.isClosed());
        begin(rig, effect);
        EXPECT_GT(rig.yields(), 400);  // all of it
        rig.battle.cmdQuit_Click();
        EXPECT_TRUE(rig.view.isClosed());
    }
}

TEST(AmbientEffects, LetTheFieldBeDrawnAnewForAnotherDisplay) {
    for (const Effect effect : {kMeteor, kStorm}) {
        SkyRig rig;
        const auto before = rig.pixels();
        for (const int size : {500, 1000}) {
            rig.atYield(30, [&] {
                rig.picture().resize(size, size, 1);
                rig.battle.redrawField();
            });
            begin(rig, effect);
            rig.picture().refresh();
        }
        EXPECT_TRUE(rig.pixels() == before);
    }
}

}  // namespace skylob::test
