#include "base/SeededRandom.h"
#include "battle/LightningStorm.h"

#include <gtest/gtest.h>

#include "tests/support/SkyRig.h"

namespace skylob::test {

static bool always() {
    return true;
}

TEST(BoltPath, GoesDownInJagsUntilItLeavesOrIsNearTheGround) {
    const auto beginning = [](const Bolt& bolt, int points) {
        return Bolt(bolt.begin(), bolt.begin() + points);
    };
    Battlefield field;
    field.TerrainHeight.fill(900);
    // Upright, runs of 1 and 2 to the left and of 4 to the right; then leaning to the right, where
    // a run to the left only moves from every third height.
    ScriptedRandom upright{{.4, 0, .4, .3, .4, .9, .5}, .5};
    const Bolt bolt = boltPath({500, 999}, field, upright, always);
    EXPECT_EQ(beginning(bolt, 6),
              (Bolt{{500, 999}, {499, 998}, {498, 997}, {497, 996}, {498, 995}, {499, 994}}));
    EXPECT_EQ(bolt.back().y, 906);  // the last height more than 5 above the ground
    ScriptedRandom leaning{{.9, .9, .4}, .5};
    EXPECT_EQ(beginning(boltPath({500, 999}, field, leaning, always), 6),
              (Bolt{{500, 999}, {499, 998}, {499, 997}, {499, 996}, {498, 995}, {499, 994}}));

    field.TerrainHeight.fill(100);
    ScriptedRandom right{{}, .9};
    EXPECT_EQ(boltPath({800, 999}, field, right, always).back(), (FieldPoint{995, 804}));
    ScriptedRandom left{{}, 0};
    EXPECT_EQ(boltPath({50, 999}, field, left, always).back(), (FieldPoint{5, 954}));
    int stretches = 0;
    ScriptedRandom stopped{{}, .5};
    EXPECT_EQ(boltPath({100, 999}, field, stopped, [&] { return ++stretches < 3; }).size(), 200u);
}

TEST(BoltStart, IsInTheSkyOrInTheMiddleOfTheBoltBefore) {
    Bolt previous;
    for (int y = 999; y > 899; --y) previous.push_back({300, y});
    struct Row {
        std::deque<double> script;
        FieldPoint start;
    };
    for (const Row& row : {Row{{.49, 0}, {50, 999}}, Row{{0, .9999}, {950, 999}},
                           Row{{.5, 0}, {300, 969}}, Row{{.9, .9999}, {300, 939}}}) {
        ScriptedRandom random{row.script};
        EXPECT_EQ(boltStart(previous, random), row.start);
    }
    ScriptedRandom first{{.5}};  // no coin is tossed for the first one
    EXPECT_EQ(boltStart({}, first), (FieldPoint{500, 999}));
    ScriptedRandom shortest{{.5, .9999}};
    EXPECT_EQ(boltStart(Bolt{FieldPoint{7, 7}}, shortest), (FieldPoint{7, 7}));
}

TEST(BoltPath, KeepsItsBoundsTenThousandTimes) {
    SeededRandom random{2026};
    Battlefield field;
    Bolt bolt;
    for (int number = 0; number < 10'000; ++number) {
        if (number % 100 == 0) generateBattlefield(field, random, 1, 10);
        if (number % 4 == 0) bolt.clear();
        const FieldPoint start = boltStart(bolt, random);
        bolt = boltPath(start, field, random, always);
        ASSERT_FALSE(bolt.empty());
        FieldPoint before{start.x, start.y + 1};
        for (const FieldPoint& at : bolt) {
            ASSERT_TRUE(at.x >= 5 && at.x <= 995 && at.y > field.heightAt(at.x) + 5);
            ASSERT_TRUE(at.y == before.y - 1 && std::abs(at.x - before.x) <= 1);
            before = at;
        }
    }
}

TEST(LightningStorm, PausesThundersAndClearsTheSky) {
    SkyRig rig;
    rig.options().chkSound_Click(true);
    rig.passTime();
    rig.picture().setPassingPoint(300, 300, kCyan);  // what is left of a trail
    rig.random.script({.0999, .5});
    rig.view.onShowField = [&] { rig.picture().takeDirty(); };
    int waits = 0;
    rig.pacer.onWait = [&] {
        EXPECT_TRUE(rig.view.inputHeld);
        EXPECT_TRUE(rig.picture().takeDirty().isEmpty());
        EXPECT_EQ(yellowPixels(rig.picture()) > 500, ++waits == 1);
        EXPECT_FALSE(rig.panel().timerMeteors || rig.panel().timerLightning);
    };
    rig.battle.timerLightning_Timer();
    EXPECT_EQ(rig.events(), (Log{"wait 125000", "sound thunder3", "wait 2000", "release input"}));
    // At a chance of 0.5 three bolts run to the right, from column 500 to 995 and from 223 of those
    // 496 points on: 273 points; from 122 of these on 151. They choose their way 10 times.
    EXPECT_EQ(rig.yields(), 496 + 273 + 151 + 10 + 1);
    EXPECT_TRUE(rig.bothTimersRun());
    EXPECT_EQ(rig.picture().pixel(300, 300), kBlack);
    EXPECT_EQ(rig.state().penWidth, 2);
}

TEST(LightningStorm, LastsFrom50SecondsTo50AndAsManyForEachBolt) {
    struct Row {
        double bolts, pause, thunder;
        Log events;
    };
    // All bolts start in column 50 and lean to the left: 46 points each, with runs of 1.
    for (const Row& row : {Row{0, 0, 0, {"wait 50000", "sound thunder1"}},
                           Row{.25, .9999, .49, {"wait 150000", "sound thunder1"}},
                           Row{.9, 0, .49, {"wait 50000", "sound thunder2"}},
                           Row{.9, .9999, .5, {"wait 250000", "sound thunder3"}}}) {
        BareSky rig;
        rig.state.SoundOn = true;
        RecordingSounds player{rig.log};
        SwitchedSounds sounds{player, rig.state};
        LightningStorm storm{rig.sky, sounds, rig.pacer, rig.view};
        const int bolts = 1 + static_cast<int>(4 * row.bolts);
        std::deque<double> script{row.bolts};
        for (int bolt = 1; bolt <= bolts; ++bolt)  // coin, column, tendency, 46 runs
            script.insert(script.end(), (bolt > 1) + 2u + 46 * 2, 0.0);
        script.insert(script.end(), {row.pause, row.thunder});
        rig.random.script(script);
        const int before = rig.random.draws();
        storm.rage();
        EXPECT_EQ(rig.random.draws() - before, static_cast<int>(script.size()));
        std::erase(rig.log, "yield");
        rig.log.resize(2);
        EXPECT_EQ(rig.log, row.events);
    }
}

TEST(LightningStorm, LetsTheWindowBeClosedAfterItsThunder) {
    SkyRig rig;  // without sound
    rig.random.script({0, 0});
    rig.atYield(496 + 5 + 1, [&] { rig.battle.cmdQuit_Click(); });
    rig.battle.timerLightning_Timer();
    EXPECT_EQ(rig.events(), (Log{"wait 75000", "release input", "close"}));
}

TEST(LightningStorm, ComesOnceInTenTicksAndStopsOnlyTheTimerWhoseBoxIsTicked) {
    SkyRig rig;
    rig.random.script({.1});
    rig.battle.timerLightning_Timer();
    EXPECT_EQ(rig.yields(), 0);
    rig.options().chkMeteors_Click(false);  // their timer goes on
    rig.passTime();
    rig.random.script({0});
    rig.pacer.onWait = [&] { EXPECT_TRUE(rig.panel().timerMeteors); };
    rig.battle.timerLightning_Timer();
    EXPECT_GT(rig.yields(), 400);
    // It starts theirs, if their box is ticked, even if it stood still.
    rig.options().chkLightning_Click(false);
    rig.options().chkMeteors_Click(true);
    EXPECT_FALSE(rig.panel().timerMeteors);
    rig.pacer.onWait = {};
    rig.passTime();
    rig.random.script({0});
    rig.battle.timerLightning_Timer();
    EXPECT_TRUE(rig.panel().timerMeteors);
}

}  // namespace skylob::test
