#include <gtest/gtest.h>

#include "tests/support/BattleRig.h"

namespace skylob::test {

TEST(ScrollBars, KeepToTheirRangesAndClickOnEveryChange) {
    StartedRig rig;
    rig.aims().setSpeed(1, 1000);
    rig.aims().setSpeed(2, 99);
    rig.aims().setAngle(1, 9);
    rig.aims().setAngle(2, 91);
    const auto& side = rig.panel().side;
    EXPECT_EQ(side[1].labelSpeed + side[1].labelAngle, "Speed: 999Angle:   10");
    EXPECT_EQ(side[2].labelSpeed + side[2].labelAngle, "Speed: 100Angle:   90");
    EXPECT_TRUE(rig.log.empty());  // the sound is off
    rig.options().chkSound_Click(true);
    rig.options().setGameSpeed(100);  // is 99 already
    rig.options().setGameSpeed(0);
    EXPECT_EQ(rig.panel().labelGameSpeed, "Game Speed: 1");
    for (int time = 1; time <= 2; ++time) rig.aims().setSpeed(1, 301);
    rig.aims().setAngle(2, 74);
    EXPECT_EQ(rig.log, (Log{"sound click", "sound click", "sound click"}));
}

TEST(Boxes, GoBackWhenTheyAreClickedAtTheWrongTime) {
    StartedRig rig;
    const BattlePanel before = rig.panel();
    rig.view.onShowField = [&] {
        const BattlePanel during = rig.panel();
        const int shown = rig.view.panelsShown;
        rig.options().chkSound_Click(true);
        rig.options().chkMeteors_Click(false);
        EXPECT_EQ(rig.view.panelsShown, shown + 2);  // the same again, for the boxes to follow
        EXPECT_TRUE(rig.panel() == during);
    };
    rig.battle.cmdShoot_Click();
    rig.view.onShowField = {};
    EXPECT_TRUE(!rig.state().SoundOn && rig.state().chkMeteors);
    const int shown = rig.view.panelsShown;
    rig.aims().setSpeed(1, 300);  // where it is
    EXPECT_EQ(rig.view.panelsShown, shown);
    EXPECT_FALSE(rig.panel() == before);  // it is the other side's turn
}

TEST(EveryHandler, MarksTheTimeAsTheLastActivityAndShowsItsEffect) {
    StartedRig rig;
    const std::function<void()> handlers[] = {
        [&] { rig.aims().setSpeed(1, 500); },
        [&] { rig.aims().setAngle(1, 50); },
        [&] { rig.options().setGameSpeed(42); },
        [&] { rig.options().chkSound_Click(true); },
        [&] { rig.options().chkTrajectory_Click(false); },
        [&] { rig.options().chkMeteors_Click(false); },
        [&] { rig.options().chkLightning_Click(false); },
        [&] { rig.options().chkWind_Click(true); },
        [&] { rig.battle.cmdShoot_Click(); },  // the next human turn begins
    };
    rig.random.script({0});  // the strongest wind
    for (const auto& handler : handlers) {
        rig.clock.time += std::chrono::seconds{1};
        rig.view.panelsShown = 0;
        handler();
        EXPECT_GT(rig.view.panelsShown, 0) << &handler - handlers;
        EXPECT_EQ(rig.state().TurnStartTime, rig.clock.time) << &handler - handlers;
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
        StartedRig rig;
        const int before = rig.random.draws();
        rig.random.script(row.r);
        rig.options().chkWind_Click(true);
        EXPECT_EQ(rig.state().Wind, row.wind);
        EXPECT_EQ(rig.panel().chkWindCaption, row.caption);
        EXPECT_EQ(rig.random.draws() - before, static_cast<int>(row.r.size()));
        rig.options().chkWind_Click(false);
        EXPECT_EQ(rig.state().Wind, 0);
        EXPECT_EQ(rig.panel().chkWindCaption, "Wind");
    }
}

TEST(Timers, FollowTheirBoxesInTheirOwnWay) {
    StartedRig rig;
    EXPECT_TRUE(rig.bothTimersRun());
    rig.options().chkMeteors_Click(false);  // their timer goes on: the lightning box is ticked
    rig.view.onShowField = [&] {
        EXPECT_TRUE(rig.panel().timerMeteors);  // a shot stops only timers with ticked boxes
        EXPECT_FALSE(rig.panel().timerLightning);
    };
    rig.battle.cmdShoot_Click();
    rig.view.onShowField = {};
    EXPECT_TRUE(rig.bothTimersRun());
    rig.options().chkLightning_Click(false);
    EXPECT_FALSE(rig.panel().timerLightning);
    rig.options().chkMeteors_Click(true);
    EXPECT_FALSE(rig.panel().timerMeteors);
    rig.battle.cmdShoot_Click();  // the next turn starts timers in the same way
    EXPECT_TRUE(rig.panel().timerMeteors && !rig.panel().timerLightning);
    rig.options().chkLightning_Click(true);
    EXPECT_TRUE(rig.bothTimersRun());
    rig.options().chkLightning_Click(false);
    rig.options().chkMeteors_Click(false);
    rig.battle.cmdShoot_Click();
    EXPECT_FALSE(rig.panel().timerMeteors || rig.panel().timerLightning);
    EXPECT_EQ(std::count(rig.log.begin(), rig.log.end(), "yield"), 6);
}

TEST(Quit, AsksOnlyBetweenTheFirstRoundAndTheLast) {
    for (const int round : {1, 2, 3}) {
        StartedRig rig{3};
        while (rig.state().RoundNumber < round) rig.shoot({100, 90});
        if (round == 2) rig.boxes.answers = {BoxAnswer::Yes};
        rig.battle.cmdQuit_Click();
        EXPECT_EQ(rig.boxes.shown.size(), round == 2 ? 1u : 0u);
        EXPECT_TRUE(rig.view.isClosed() && rig.view.inputHeld && !rig.shared.SetOver);
    }
}

TEST(Quit, StaysOnNo) {
    StartedRig rig;
    rig.shoot({100, 90});
    rig.boxes.answers = {BoxAnswer::No};
    rig.options().chkSound_Click(true);
    rig.clock.time += std::chrono::seconds{99};
    rig.boxes.onShow = [&] {
        EXPECT_FALSE(rig.panel().timerMeteors);
        EXPECT_FALSE(rig.panel().timerLightning);
    };
    rig.battle.cmdQuit_Click();
    EXPECT_EQ(rig.boxes.shown, Log{"Skylob: Are you sure you want to quit this set? (?) Yes/no"});
    EXPECT_EQ(rig.state().TurnStartTime, rig.clock.time);
    EXPECT_FALSE(rig.view.isClosed());
    EXPECT_EQ(rig.settings.get("SoundSetting", ""), "0");
    EXPECT_TRUE(rig.bothTimersRun() && rig.panel().commandsEnabled);
}

TEST(Quit, SavesTheOptionsAndAsksAboutAChangedSpeed) {
    for (const BoxAnswer keep : {BoxAnswer::Yes, BoxAnswer::No}) {
        StartedRig rig;
        rig.options().setGameSpeed(42);
        rig.options().chkSound_Click(true);
        rig.options().chkTrajectory_Click(false);
        rig.options().chkMeteors_Click(false);
        rig.random.script({0.9});
        rig.options().chkWind_Click(true);
        rig.boxes.answers = {keep};
        rig.battle.cmdQuit_Click();
        EXPECT_EQ(rig.boxes.shown,
                  (Log{"Game Speed Setting: I notice you've changed the game speed setting.\r\n\r\n"
                       "Would you like to keep this speed setting from now on? (?) Yes/no"}));
        EXPECT_EQ(rig.settings.get("GameSpeed", ""), keep == BoxAnswer::Yes ? "42" : "99");
        std::string saved;
        for (const char* option : {"Sound", "Trajectory", "Meteors", "Lightning", "Wind"})
            saved += rig.settings.get(std::string{option} + "Setting", "none");
        EXPECT_EQ(saved, "10011");
    }
}

TEST(Quit, LetsNoSecondCommandInAtItsYield) {
    StartedRig rig;
    rig.pacer.onYield = [&] {
        rig.battle.cmdQuit_Click();
        rig.battle.cmdShoot_Click();
    };
    rig.battle.cmdQuit_Click();
    EXPECT_EQ(rig.log, (Log{"yield", "close"}));
    EXPECT_TRUE(rig.battle.shots().empty());
}

TEST(Options, AreRestoredWithTheirDefaults) {
    BattleRig slowest;
    slowest.settings.save("GameSpeed", "1");  // where the bar stands by itself
    slowest.start();
    EXPECT_EQ(slowest.panel().labelGameSpeed, "Game Speed: 1");
    BattleRig rig;
    rig.settings = {};
    rig.start();
    EXPECT_EQ(rig.panel().labelGameSpeed, "Game Speed: 50");
    EXPECT_TRUE(rig.state().SoundOn && rig.state().ShowTrajectory);
    EXPECT_TRUE(rig.panel().chkMeteors && rig.panel().chkLightning && !rig.panel().chkWind);
    EXPECT_EQ(rig.state().Wind, 0);
    rig.battle.cmdQuit_Click();  // 50 instead of nothing is no change of speed
    EXPECT_EQ(rig.settings.get("GameSpeed", "none"), "none");
}

}  // namespace skylob::test
