#include <gtest/gtest.h>

#include "tests/support/BattleRig.h"

namespace skylob::test {

struct BattleControls : testing::Test, StartedRig {};

TEST_F(BattleControls, BarsKeepToTheirRangesAndClickOnEveryChange) {
    aim(1, {1000, 9});
    aim(2, {99, 91});
    EXPECT_EQ(labels(1), "Speed: 999, Angle:   10, Men Left: 100");
    EXPECT_EQ(labels(2), "Speed: 100, Angle:   90, Men Left: 100");
    EXPECT_EQ(panel().side[1].scrollSpeed, 999);
    EXPECT_EQ(panel().side[1].scrollAngle, 10);
    EXPECT_EQ(log, Log{});  // the sound is off
    options().chkSound_Click(true);
    options().setGameSpeed(100);  // is 99 already
    options().setGameSpeed(0);
    EXPECT_EQ(panel().labelGameSpeed, "Game Speed: 1");
    for (int time = 1; time <= 2; ++time) aims().setSpeed(1, 301);
    aims().setAngle(2, 74);
    EXPECT_EQ(log, (Log{"sound click", "sound click", "sound click"}));
}

TEST_F(BattleControls, BoxesGoBackWhenTheyAreClickedAtTheWrongTime) {
    const BattlePanel before = panel();
    view.onShowField = [&] {
        const BattlePanel during = panel();
        view.panelsShown = 0;
        options().chkSound_Click(true);
        options().chkMeteors_Click(false);
        EXPECT_EQ(view.panelsShown, 2);  // the same again, for the boxes to follow
        EXPECT_TRUE(panel() == during);
    };
    battle.cmdShoot_Click();
    view.onShowField = {};
    EXPECT_EQ(ticked(), "TML");
    view.panelsShown = 0;
    aims().setSpeed(1, 300);  // where it is
    EXPECT_EQ(view.panelsShown, 0);
    EXPECT_FALSE(panel() == before);  // it is the other side's turn
}

TEST_F(BattleControls, MarkTheTimeAsTheLastActivityAndShowTheirEffect) {
    const std::function<void()> handlers[] = {
        [&] { aims().setSpeed(1, 500); },
        [&] { aims().setAngle(1, 50); },
        [&] { options().setGameSpeed(42); },
        [&] { options().chkSound_Click(true); },
        [&] { options().chkTrajectory_Click(false); },
        [&] { options().chkMeteors_Click(false); },
        [&] { options().chkLightning_Click(false); },
        [&] { options().chkWind_Click(true); },
        [&] { battle.cmdShoot_Click(); },  // the next human turn begins
    };
    random.script({0});  // the strongest wind
    for (const auto& handler : handlers) {
        clock.time += std::chrono::seconds{1};
        view.panelsShown = 0;
        handler();
        EXPECT_GT(view.panelsShown, 0) << &handler - handlers;
        EXPECT_EQ(state().TurnStartTime, clock.time) << &handler - handlers;
    }
}

TEST_F(BattleControls, WindIsDrawnUntilItIsStrongEnough) {
    // 79 values from -39: r = (wind + 39 + 0.5) / 79.
    const auto draw = [](int wind) { return (wind + 39.5) / 79; };
    const std::tuple<std::deque<double>, int, std::string> rows[] = {
        {{draw(-23)}, -23, "Wind  <--23"},
        {{draw(17)}, 17, "Wind  17-->"},
        {{draw(0), draw(5), draw(-5), draw(6)}, 6, "Wind  6-->"},
        {{draw(-6)}, -6, "Wind  <--6"},
        {{0.0}, -39, "Wind  <--39"},
        {{0.9999}, 39, "Wind  39-->"}};
    for (const auto& [r, wind, caption] : rows) {
        const int before = random.draws();
        random.script(r);
        options().chkWind_Click(true);
        EXPECT_EQ(std::pair(state().Wind, panel().chkWindCaption), std::pair(wind, caption));
        EXPECT_EQ(random.draws() - before, static_cast<int>(r.size()));
        options().chkWind_Click(false);
        EXPECT_EQ(std::to_string(state().Wind) + panel().chkWindCaption, "0Wind");
    }
}

TEST_F(BattleControls, TimersFollowTheirBoxesInTheirOwnWay) {
    EXPECT_EQ(timers(), "ML");
    options().chkMeteors_Click(false);  // their timer goes on: the lightning box is ticked
    // A shot stops only timers with ticked boxes.
    view.onShowField = [&] { EXPECT_EQ(timers(), "M"); };
    battle.cmdShoot_Click();
    view.onShowField = {};
    EXPECT_EQ(timers(), "ML");
    options().chkLightning_Click(false);
    EXPECT_FALSE(panel().timerLightning);
    options().chkMeteors_Click(true);
    EXPECT_EQ(timers(), "");
    battle.cmdShoot_Click();  // the next turn starts timers in the same way
    EXPECT_EQ(timers(), "M");
    options().chkLightning_Click(true);
    EXPECT_EQ(timers(), "ML");
    options().chkLightning_Click(false);
    options().chkMeteors_Click(false);
    battle.cmdShoot_Click();
    EXPECT_EQ(timers(), "");
    EXPECT_EQ(std::ranges::count(log, "yield"), 6);
}

TEST(Quit, AsksOnlyBetweenTheFirstRoundAndTheLast) {
    for (const int round : {1, 2, 3}) {
        StartedRig rig{3};
        while (rig.state().RoundNumber < round) rig.shoot({100, 90});
        if (round == 2) rig.boxes.answers = {BoxAnswer::Yes};
        rig.battle.cmdQuit_Click();
        EXPECT_EQ(rig.boxes.shown.size(), round == 2 ? 1u : 0u);
        EXPECT_EQ((std::array{rig.view.isClosed(), rig.view.inputHeld, rig.shared.SetOver}),
                  (std::array{true, true, false}));
    }
}

TEST_F(BattleControls, NothingComesOverTheBattleWhileTheRulesAreRead) {
    view.onShowRules = [&] {
        EXPECT_EQ(timers(), "");
        clock.time += std::chrono::seconds{99};
    };
    log.clear();
    battle.readRules();
    EXPECT_EQ(log, Log{"rules"});
    EXPECT_EQ(timers(), "ML");
    EXPECT_EQ(state().TurnStartTime, clock.time);
    EXPECT_TRUE(panel().commandsEnabled);
}

TEST_F(BattleControls, QuitStaysOnNo) {
    shoot({100, 90});
    boxes.answers = {BoxAnswer::No};
    options().chkSound_Click(true);
    clock.time += std::chrono::seconds{99};
    boxes.onShow = [&] { EXPECT_EQ(timers(), ""); };
    battle.cmdQuit_Click();
    EXPECT_EQ(boxes.shown, Log{"Skylob: Are you sure you want to quit this set? (?) Yes/no"});
    EXPECT_EQ(state().TurnStartTime, clock.time);
    EXPECT_EQ((std::array{view.isClosed(), panel().commandsEnabled}), (std::array{false, true}));
    EXPECT_EQ(settings.get("SoundSetting", ""), "0");
    EXPECT_EQ(timers(), "ML");
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
        std::string saved = rig.settings.get("GameSpeed", "");
        for (const char* option : {"Sound", "Trajectory", "Meteors", "Lightning", "Wind"})
            saved.append(" ").append(rig.settings.get(std::string{option} + "Setting", "none"));
        EXPECT_EQ(saved, keep == BoxAnswer::Yes ? "42 1 0 0 1 1" : "99 1 0 0 1 1");
    }
}

TEST_F(BattleControls, QuitLetsNoSecondCommandInAtItsYield) {
    pacer.onYield = [&] {
        battle.cmdQuit_Click();
        battle.cmdShoot_Click();
    };
    battle.cmdQuit_Click();
    EXPECT_EQ(log, (Log{"yield", "close"}));
    EXPECT_EQ(battle.shots().size(), 0u);
}

TEST(Options, AreRestoredWithTheirDefaults) {
    BattleRig slowest;
    slowest.settings.save("GameSpeed", "1");  // where the bar stands by itself
    slowest.start();
    EXPECT_EQ(slowest.panel().labelGameSpeed, "Game Speed: 1");
    BattleRig rig;
    rig.settings = {};
    rig.start();
    EXPECT_EQ(rig.panel().labelGameSpeed + ", " + rig.ticked(), "Game Speed: 50, STML");
    EXPECT_EQ((std::array{rig.state().SoundOn, rig.state().ShowTrajectory, rig.state().Wind != 0}),
              (std::array{true, true, false}));
    rig.battle.cmdQuit_Click();  // 50 instead of nothing is no change of speed
    EXPECT_EQ(rig.settings.get("GameSpeed", "none"), "none");
}

}  // namespace skylob::test
