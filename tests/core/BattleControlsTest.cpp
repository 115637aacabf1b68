#include "battle/BattleControls.h"

#include <gtest/gtest.h>

#include "tests/support/Fakes.h"

namespace skylob {
namespace {

using test::BattleRig;
using test::Log;

DateTime at(int seconds) {
    return DateTime{std::chrono::seconds{seconds}};
}

std::unique_ptr<BattleRig> startedRig(int rounds = 5) {
    auto rig = std::make_unique<BattleRig>("Bob", rounds);
    rig->start();
    rig->log.clear();
    return rig;
}

TEST(ScrollBars, DriveTheirLabelsWithinTheirRanges) {
    const auto rig = startedRig();
    BattleControls& controls = rig->controls();
    controls.setSpeed(1, 1000);
    controls.setSpeed(2, 99);
    controls.setAngle(1, 9);
    controls.setAngle(2, 91);
    EXPECT_EQ(rig->panel().side[1].labelSpeed, "Speed: 999");
    EXPECT_EQ(rig->panel().side[2].labelSpeed, "Speed: 100");
    EXPECT_EQ(rig->panel().side[1].labelAngle, "Angle:   10");
    EXPECT_EQ(rig->panel().side[2].labelAngle, "Angle:   90");
    controls.setGameSpeed(100);
    EXPECT_EQ(rig->shared.GameSpeed, 99);
    controls.setGameSpeed(0);
    EXPECT_EQ(rig->shared.GameSpeed, 1);
    EXPECT_EQ(rig->panel().labelGameSpeed, "Game Speed: 1");
    EXPECT_TRUE(rig->log.empty());  // all in silence: the sound is off
}

TEST(ScrollBars, ClickOnEveryChangeAndOnlyThen) {
    const auto rig = startedRig();
    rig->controls().chkSound_Click(true);
    rig->controls().setSpeed(1, 301);
    rig->controls().setSpeed(1, 301);
    rig->controls().setAngle(2, 74);
    rig->controls().setGameSpeed(98);
    EXPECT_EQ(rig->log, (Log{"sound click", "sound click", "sound click"}));
}

TEST(EveryHandler, MarksTheTimeAsTheLastActivity) {
    const auto rig = startedRig();
    BattleControls& controls = rig->controls();
    const std::function<void()> handlers[] = {
        [&] { controls.setSpeed(1, 500); },
        [&] { controls.setAngle(1, 50); },
        [&] { controls.setGameSpeed(42); },
        [&] { controls.chkSound_Click(true); },
        [&] { controls.chkTrajectory_Click(false); },
        [&] { controls.chkMeteors_Click(false); },
        [&] { controls.chkLightning_Click(false); },
        [&] { controls.chkWind_Click(false); },
        [&] { rig->fire(100, 75); },  // the next human turn begins
    };
    int seconds = 100;
    for (const auto& handler : handlers) {
        rig->clock.time = at(++seconds);
        handler();
        EXPECT_EQ(rig->battle.state().TurnStartTime, at(seconds)) << "handler " << seconds - 100;
    }
}

TEST(Wind, IsDrawnUntilItIsStrongEnough) {
    struct Row {
        std::deque<double> r;
        int wind;
        std::string caption;
    };
    // 79 values from -39: r = (wind + 39 + 0.5) / 79.
    const auto draw = [](int wind) { return (wind + 39.5) / 79; };
    for (const Row& row : {Row{{draw(-23)}, -23, "Wind  <--23"}, Row{{draw(17)}, 17, "Wind  17-->"},
                           Row{{draw(0), draw(5), draw(-5), draw(6)}, 6, "Wind  6-->"},
                           Row{{draw(-6)}, -6, "Wind  <--6"}, Row{{0.0}, -39, "Wind  <--39"},
                           Row{{0.9999}, 39, "Wind  39-->"}}) {
        const auto rig = startedRig();
        const int before = rig->random.draws();
        rig->random.script(row.r);
        rig->controls().chkWind_Click(true);
        EXPECT_EQ(rig->battle.state().Wind, row.wind);
        EXPECT_EQ(rig->panel().chkWindCaption, row.caption);
        EXPECT_EQ(rig->random.draws() - before, static_cast<int>(row.r.size()));
        rig->controls().chkWind_Click(false);
        EXPECT_EQ(rig->battle.state().Wind, 0);
        EXPECT_EQ(rig->panel().chkWindCaption, "Wind");
    }
}

TEST(Wind, BlowsAnewEveryRoundAndIsDrawnOnlyThen) {
    BattleRig rig;
    rig.settings.save("WindSetting", "1");
    rig.random.script({0.0, 0.1, 0.9});  // wind, first shooter, then the field: low ground
    rig.start();
    EXPECT_EQ(rig.battle.state().Wind, -39);
    EXPECT_EQ(rig.battle.state().Shooter, 1);
    EXPECT_LT(rig.battle.state().field.heightAt(1), 200);
    rig.random.script({0.9999});
    rig.shoot(227, 84);  // the wind brings it back: a self hit ends the round
    EXPECT_EQ(rig.battle.state().RoundNumber, 2);
    EXPECT_EQ(rig.panel().chkWindCaption, "Wind  39-->");
}

TEST(Timers, FollowTheirBoxesInTheirOwnWay) {
    const auto rig = startedRig();
    BattleControls& controls = rig->controls();
    EXPECT_TRUE(rig->panel().timerMeteors);
    EXPECT_TRUE(rig->panel().timerLightning);
    controls.chkMeteors_Click(false);
    EXPECT_TRUE(rig->panel().timerMeteors);  // the lightning box is ticked
    controls.chkLightning_Click(false);
    EXPECT_FALSE(rig->panel().timerLightning);
    controls.chkMeteors_Click(true);
    EXPECT_FALSE(rig->panel().timerMeteors);
    controls.chkLightning_Click(true);
    EXPECT_TRUE(rig->panel().timerLightning);
    EXPECT_EQ(rig->log, (Log{"yield", "yield", "yield", "yield"}));
}

TEST(Quit, AsksOnlyBetweenTheFirstRoundAndTheLast) {
    for (const int round : {1, 2, 3}) {
        const auto rig = startedRig(3);
        while (rig->battle.state().RoundNumber < round) rig->shoot(100, 90);
        rig->log.clear();
        if (round == 2) rig->boxes.answers = {BoxAnswer::Yes};
        rig->controls().cmdQuit_Click();
        EXPECT_EQ(rig->boxes.shown.size(), round == 2 ? 1u : 0u);
        EXPECT_TRUE(rig->view.isClosed());
        EXPECT_TRUE(rig->view.inputHeld);
        EXPECT_FALSE(rig->shared.SetOver);
    }
}

TEST(Quit, StaysOnNo) {
    const auto rig = startedRig();
    rig->shoot(100, 90);
    rig->boxes.answers = {BoxAnswer::No};
    rig->controls().chkSound_Click(true);
    rig->clock.time = at(99);
    rig->controls().cmdQuit_Click();
    EXPECT_EQ(rig->battle.state().TurnStartTime, at(99));
    ASSERT_EQ(rig->boxes.shown.size(), 1u);
    EXPECT_EQ(rig->boxes.shown[0].title, "Skylob");
    EXPECT_EQ(rig->boxes.shown[0].text, "Are you sure you want to quit this set?");
    EXPECT_EQ(rig->boxes.shown[0].icon, BoxIcon::Question);
    EXPECT_EQ(rig->boxes.shown[0].buttons, BoxButtons::YesNo);
    EXPECT_FALSE(rig->view.isClosed());
    EXPECT_EQ(rig->settings.get("SoundSetting", ""), "0");
    EXPECT_TRUE(rig->panel().timerMeteors);
    EXPECT_TRUE(rig->panel().timerLightning);
    EXPECT_TRUE(rig->panel().commandsEnabled);
}

TEST(Quit, SavesTheOptionsAndAsksAboutAChangedSpeed) {
    for (const BoxAnswer keep : {BoxAnswer::Yes, BoxAnswer::No}) {
        const auto rig = startedRig();
        rig->controls().setGameSpeed(42);
        rig->controls().chkSound_Click(true);
        rig->controls().chkTrajectory_Click(false);
        rig->random.script({0.9});
        rig->controls().chkWind_Click(true);
        rig->boxes.answers = {keep};
        rig->controls().cmdQuit_Click();
        ASSERT_EQ(rig->boxes.shown.size(), 1u);
        EXPECT_EQ(rig->boxes.shown[0].title, "Game Speed Setting");
        EXPECT_EQ(rig->boxes.shown[0].text,
                  "I notice you've changed the game speed setting.\r\n\r\n"
                  "Would you like to keep this speed setting from now on?");
        EXPECT_EQ(rig->boxes.shown[0].icon, BoxIcon::Question);
        EXPECT_EQ(rig->settings.get("GameSpeed", ""), keep == BoxAnswer::Yes ? "42" : "99");
        EXPECT_EQ(rig->settings.get("SoundSetting", ""), "1");
        EXPECT_EQ(rig->settings.get("TrajectorySetting", ""), "0");
        EXPECT_EQ(rig->settings.get("MeteorsSetting", ""), "1");
        EXPECT_EQ(rig->settings.get("LightningSetting", ""), "1");
        EXPECT_EQ(rig->settings.get("WindSetting", ""), "1");
    }
}

TEST(Quit, LetsNoSecondCommandInAtItsYield) {
    const auto rig = startedRig();
    rig->pacer.onYield = [&] {
        rig->controls().cmdQuit_Click();
        rig->battle.cmdShoot_Click();
    };
    rig->controls().cmdQuit_Click();
    EXPECT_EQ(rig->log, (Log{"yield", "close"}));
    EXPECT_TRUE(rig->battle.shots().empty());
}

TEST(Options, ShowEvenTheSlowestSpeed) {
    BattleRig rig;
    rig.settings.save("GameSpeed", "1");  // where the bar stands by itself
    rig.start();
    EXPECT_EQ(rig.panel().labelGameSpeed, "Game Speed: 1");
    EXPECT_EQ(rig.shared.GameSpeed, 1);
}

TEST(Options, AreRestoredWithTheirDefaults) {
    BattleRig rig;
    rig.settings = {};
    rig.start();
    EXPECT_EQ(rig.shared.GameSpeed, 50);
    EXPECT_EQ(rig.panel().labelGameSpeed, "Game Speed: 50");
    EXPECT_TRUE(rig.battle.state().SoundOn);
    EXPECT_TRUE(rig.battle.state().ShowTrajectory);
    EXPECT_TRUE(rig.panel().chkMeteors && rig.panel().chkLightning);
    EXPECT_FALSE(rig.panel().chkWind);
    EXPECT_EQ(rig.battle.state().Wind, 0);
    rig.controls().cmdQuit_Click();  // 50 instead of nothing is no change of speed
    EXPECT_TRUE(rig.boxes.shown.empty());
    EXPECT_EQ(rig.settings.get("GameSpeed", "none"), "none");
}

}  // namespace
}  // namespace skylob
