#include "base/SeededRandom.h"
#include "battle/LightningStorm.h"

#include <gtest/gtest.h>

#include "tests/support/SkyRig.h"

namespace skylob::test {

constexpr auto always = [] { return true; };
struct Storms : testing::Test, SkyRig {};

TEST(BoltPath, GoesDownInJagsUntilItLeavesOrIsNearTheGround) {
    const auto beginning = [](const Bolt& bolt) { return Bolt(bolt.begin(), bolt.begin() + 6); };
    Battlefield field;
    field.TerrainHeight.fill(900);
    // Upright, runs of 1 and 2 to the left and of 4 to the right; then leaning to the right, where
    // a run to the left only moves from every third height.
    ScriptedRandom upright{{.4, 0, .4, .3, .4, .9, .5}, .5};
    const Bolt bolt = boltPath({500, 999}, field, upright, always);
    EXPECT_EQ(beginning(bolt),
              (Bolt{{500, 999}, {499, 998}, {498, 997}, {497, 996}, {498, 995}, {499, 994}}));
    EXPECT_EQ(bolt.back().y, 906);  // the last height more than 5 above the ground
    ScriptedRandom leaning{{.9, .9, .4}, .5};
    EXPECT_EQ(beginning(boltPath({500, 999}, field, leaning, always)),
              (Bolt{{500, 999}, {499, 998}, {499, 997}, {499, 996}, {498, 995}, {499, 994}}));

    field.TerrainHeight.fill(100);
    ScriptedRandom right{{}, .9}, left{{}, 0}, stopped{{}, .5};
    EXPECT_EQ(boltPath({800, 999}, field, right, always).back(), (FieldPoint{995, 804}));
    EXPECT_EQ(boltPath({50, 999}, field, left, always).back(), (FieldPoint{5, 954}));
    const auto twice = [left = 2]() mutable { return left-- > 0; };
    EXPECT_EQ(boltPath({100, 999}, field, stopped, twice).size(), 200u);
}

TEST(BoltStart, IsInTheSkyOrInTheMiddleOfTheBoltBefore) {
    Bolt previous;
    for (int y = 999; y > 899; --y) previous.push_back({300, y});
    const std::tuple<Bolt, std::deque<double>, FieldPoint> rows[] = {
        {previous, {.49, 0}, {50, 999}}, {previous, {0, .9999}, {950, 999}},
        {previous, {.5, 0}, {300, 969}}, {previous, {.9, .9999}, {300, 939}},
        {{}, {.5}, {500, 999}},  // no coin is tossed for the first one
        {{{7, 7}}, {.5, .9999}, {7, 7}}};
    for (const auto& [before, script, start] : rows) {
        ScriptedRandom random{script};
        EXPECT_EQ(boltStart(before, random), start) << start.x << ", " << start.y;
    }
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
            ASSERT_EQ(at.x, std::clamp(at.x, 5, 995));
            ASSERT_GT(at.y, field.heightAt(at.x) + 5);
            ASSERT_EQ(at.y, before.y - 1);
            ASSERT_LE(std::abs(at.x - before.x), 1);
            before = at;
        }
    }
}

TEST_F(Storms, PauseThunderAndClearTheSky) {
    options().chkSound_Click(true);
    passTime();
    picture().setPassingPoint(300, 300, kCyan);  // what is left of a trail
    view.onShowField = [&] { picture().takeDirty(); };
    int waits = 0;
    pacer.onWait = [&] {
        EXPECT_TRUE(view.inputHeld);
        EXPECT_TRUE(picture().takeDirty().isEmpty());
        EXPECT_EQ(yellowPixels(picture()) > 500, ++waits == 1);
        EXPECT_EQ(timers(), "");
    };
    begin(kStorm, {.0999, .5});
    EXPECT_EQ(events(), (Log{"wait 125000", "sound thunder3", "wait 2000", "release input"}));
    // At a chance of 0.5 three bolts run to the right, from column 500 to 995 and from 223 of those
    // 496 points on: 273 points; from 122 of these on 151. They choose their way 10 times.
    EXPECT_EQ(yields(), 496 + 273 + 151 + 10 + 1);
    EXPECT_EQ(timers(), "ML");
    EXPECT_EQ(picture().pixel(300, 300), kBlack);
    EXPECT_EQ(state().penWidth, 2);
}

TEST(Storm, LastsFrom50SecondsTo50AndAsManyForEachBolt) {
    // All bolts start in column 50 and lean to the left: 46 points each, with runs of 1.
    const std::tuple<int, double, double, Log> rows[] = {
        {1, 0, 0, {"wait 50000", "sound thunder1"}},
        {2, .9999, .49, {"wait 150000", "sound thunder1"}},
        {4, 0, .49, {"wait 50000", "sound thunder2"}},
        {4, .9999, .5, {"wait 250000", "sound thunder3"}}};
    for (const auto& [bolts, pause, thunder, events] : rows) {
        BareSky rig;
        rig.state.SoundOn = true;
        RecordingSounds player{rig.log};
        SwitchedSounds sounds{player, rig.state};
        LightningStorm storm{rig.sky, sounds, rig.pacer, rig.view};
        std::deque<double> script{(bolts - .5) / 4};
        for (int bolt = 1; bolt <= bolts; ++bolt)  // coin, column, tendency, 46 runs
            script.insert(script.end(), (bolt > 1) + 2u + 46 * 2, 0.0);
        script.insert(script.end(), {pause, thunder});
        rig.random.script(script);
        const int before = rig.random.draws();
        storm.rage();
        EXPECT_EQ(rig.random.draws() - before, static_cast<int>(script.size()));
        std::erase(rig.log, "yield");
        rig.log.resize(2);
        EXPECT_EQ(rig.log, events);
    }
}

TEST_F(Storms, SayHowLongTheyHoldTheFieldAndRememberOneRequestToClose) {
    pacer.millisecondsLeft = {75000, 60001, 60000, 9001, 1};
    begin(kStorm, {0, 0});
    const std::string says = "A storm holds the field.  ";
    EXPECT_EQ(view.reports, (Log{says + "1:15", says + "1:01", says + "1:00", says + "0:10",
                                 says + "0:01", "over"}));
    passTime();
    pacer.millisecondsLeft = {4000};
    pacer.onWait = [&] {
        for (int request = 1; request <= 2; ++request) battle.cmdQuit_Click();
    };
    view.reports.clear();
    begin(kStorm, {0, 0});
    EXPECT_EQ(view.reports, (Log{says + "0:04  Closing waits until it is over.", "over"}));
    EXPECT_EQ(events(), (Log{"wait 75000", "release input", "close"}));
}

TEST_F(Storms, LetTheWindowBeClosedAfterTheirThunder) {
    atYield(496 + 5 + 1, [&] { battle.cmdQuit_Click(); });
    begin(kStorm, {0, 0});  // without sound
    EXPECT_EQ(events(), (Log{"wait 75000", "release input", "close"}));
}

TEST_F(Storms, ComeOnceInTenTicksAndStopOnlyTheTimerWhoseBoxIsTicked) {
    begin(kStorm, {.1});
    EXPECT_EQ(yields(), 0);
    options().chkMeteors_Click(false);  // their timer goes on
    passTime();
    pacer.onWait = [&] { EXPECT_TRUE(panel().timerMeteors); };
    begin(kStorm);
    EXPECT_GT(yields(), 400);
    // It starts theirs, if their box is ticked, even if it stood still.
    options().chkLightning_Click(false);
    options().chkMeteors_Click(true);
    EXPECT_FALSE(panel().timerMeteors);
    pacer.onWait = {};
    passTime();
    begin(kStorm);
    EXPECT_TRUE(panel().timerMeteors);
}

}  // namespace skylob::test
