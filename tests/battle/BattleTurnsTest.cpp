#include <gtest/gtest.h>

#include "tests/support/SkyRig.h"

namespace skylob::test {

// On the rig's field, with the mountain between the pieces, these shots are known to land so.
// Worked out by a second program that shares no code with this one.
constexpr Aim kMiss{100, 75}, kSelfHit{100, 90}, kOutOfBounds{999, 45};
constexpr Aim kDirectHitBy[] = {{381, 80}, {390, 80}};  // sides 1 and 2
constexpr Aim kNearMissBy[] = {{379, 80}, {392, 80}};   // 10 and 9 columns beside the piece

struct BattleTurns : testing::Test, StartedRig {};
struct BattleShots : testing::Test, SkyRig {};

TEST_F(BattleTurns, StartWithBothSidesSetUp) {
    EXPECT_EQ(state().penWidth, 2);  // of the ground's lines
    for (const int side : {1, 2}) {
        EXPECT_EQ(labels(side), "Speed: 300, Angle:   75, Men Left: 100");
        EXPECT_EQ(panel().side[side].enabled, side == 1);
    }
    EXPECT_EQ(panel().labelRoundNumber, "Round 1 of 5");
    EXPECT_EQ((std::array{panel().commandsEnabled, view.inputHeld}), (std::array{true, false}));
    start();  // as when a box closes over the battle; it would draw side 2
    EXPECT_EQ(state().Shooter, 1);
    for (const auto& [r, side] : {std::pair{0.1, 1}, std::pair{0.9, 2}}) {
        BattleRig narrow;
        narrow.view.width = 800;
        narrow.view.onShowField = [&narrow] {
            EXPECT_TRUE(narrow.view.inputHeld);
            EXPECT_EQ(narrow.panel().labelRoundNumber, "Round 1 of 5");
        };
        // What the set before has left.
        narrow.shared.RoundsWon = narrow.shared.TotalKills = narrow.shared.RoundShots = {3, 9};
        narrow.random.script({r});
        narrow.start();
        EXPECT_EQ(narrow.state().penWidth, 1);
        EXPECT_EQ(narrow.tally(), "1:" + std::to_string(side) + " 100-100 0-0 0-0 0-0 0-0");
    }
}

TEST_F(BattleTurns, AreCountedForBothSides) {
    const std::tuple<double, Aim, std::string> steps[] = {
        {.999, kMiss, "1:2 85-100 1-0 0-0 0-0 0-0"},  // of 100 men 0 to 15 desert
        {0, kOutOfBounds, "1:1 85-99 1-1 0-0 0-0 0-0"},
        // The loser, with all its men credited, opens the next round, which starts afresh.
        {.5, kDirectHitBy[0], "2:2 100-100 0-0 0-0 99-0 1-0"},
        {.5, kDirectHitBy[1], "3:1 100-100 0-0 0-0 99-100 1-1"},
        {.5, kSelfHit, "4:1 100-100 0-0 0-0 99-200 1-2"},
        {.5, kNearMissBy[0], "4:2 92-91 1-0 9-0 108-200 1-2"},  // 101 / 11 = 9.18
        {.5, kMiss, "4:1 92-83 1-1 9-0 108-200 1-2"}};
    for (const auto& [r, at, after] : steps) {
        random.script({r});
        shoot(at);
        EXPECT_EQ(tally(), after);
        for (const int side : {1, 2}) {
            const SidePanel& shown = panel().side[side];
            EXPECT_EQ(shown.enabled, side == state().Shooter);
            EXPECT_EQ(shown.menLeft, state().MenLeft[side]);
            EXPECT_EQ(shown.labelMenLeft, "Men Left: " + std::to_string(shown.menLeft));
        }
    }
}

TEST_F(BattleShots, ExplodeOnATargetThatTheyNearlyMiss) {
    const Colour ground = picture().pixel(853, 26);
    shoot(kNearMissBy[0]);
    EXPECT_EQ(battle.shots()[0].landedAt, (FieldPoint{853, 28}));
    EXPECT_EQ(picture().pixel(853, 26), ground);
    EXPECT_EQ(picture().pixel(863, 26), kBlack);  // the dot that a blast leaves
}

TEST(SideWithoutMen, LosesAtTheStartOfItsTurnOrByANearMiss) {
    for (const bool beside : {false, true}) {
        StartedRig rig;
        for (int shot = 1; shot <= 25; ++shot) rig.shoot(kMiss);
        // 13 times 8, but never below 0.
        EXPECT_EQ(rig.tally(), "1:2 0-4 13-12 0-0 0-0 0-0");
        rig.boxes.answers = {BoxAnswer::Ok};
        rig.boxes.onShow = [&] { EXPECT_EQ(rig.panel().side[2].labelMenLeft, "Men Left: 0"); };
        rig.shoot(beside ? kNearMissBy[1] : kMiss);
        const Log box{
            "Ann loses this round!: Ann-\r\n\r\nYou can't shoot because you have no men "
            "left! (!)"};
        EXPECT_EQ(rig.boxes.shown, beside ? Log{} : box);
        // Deserters are nobody's kills.
        EXPECT_EQ(rig.tally(), "2:1 100-100 0-0 0-0 0-0 0-1");
    }
}

TEST_F(BattleTurns, DisableEverythingAndHoldInputDuringAShot) {
    options().chkSound_Click(true);
    bool seen = false;
    view.onShowField = [&] {
        seen = true;
        EXPECT_EQ((std::array{panel().commandsEnabled, panel().side[1].enabled, view.inputHeld}),
                  (std::array{false, false, true}));
        EXPECT_EQ(timers(), "");
        // Clicks that come through all the same do nothing.
        battle.FieldPiece_Click();
        battle.cmdQuit_Click();
    };
    battle.cmdShoot_Click();
    EXPECT_TRUE(seen);
    EXPECT_EQ(log, (Log{"sound shot", "sound explosion", "release input"}));
    EXPECT_EQ(battle.shots().size(), 1u);
    EXPECT_EQ(timers(), "ML");
}

TEST_F(BattleShots, ArePacedByTheGameSpeedAndTracedOnDemand) {
    options().setGameSpeed(60);
    options().chkTrajectory_Click(false);
    fire(kOutOfBounds);
    EXPECT_EQ(pacer.counts.at(1), 19'500'001);
    // The muzzle is 8 above the ground.
    EXPECT_EQ(picture().pixel(163, 113), kBlack);
    options().chkTrajectory_Click(true);
    fire(kOutOfBounds);
    EXPECT_NE(picture().pixel(863, 36), kBlack);
    fire(kMiss);
    EXPECT_EQ(pacer.counts.at(1), 19'500'001);  // of the explosion
}

TEST_F(BattleShots, LeaveStarsOfTheWidthThatTheRoundBeforeLeftThePenAt) {
    const auto expectWidth = [&](int width) {
        const auto& star = state().field.stars.at(400);
        const auto shown = pixels();
        EXPECT_EQ(picture().pixel(star.x + 1, star.y - 1) == star.colour, width == 2);
        shoot(kMiss);  // leaves the pen at 1
        battle.replotField();
        picture().refresh();
        EXPECT_TRUE(pixels() == shown);
    };
    battle.replotField();  // with the pen still at the ground's width
    expectWidth(1);
    shoot(kSelfHit);
    expectWidth(1);
    shoot(kSelfHit);
    boxes.answers = {BoxAnswer::Ok};
    while (state().RoundNumber == 3) shoot({999, 75});  // out of bounds, over the top
    expectWidth(2);
}

TEST_F(BattleShots, ArePlottedAgainAsIfThePictureHadAlwaysHadItsSize) {
    SkyRig other;
    other.picture().resize(1500, 700, 2);
    other.battle.replotField();
    for (SkyRig* rig : {static_cast<SkyRig*>(this), &other}) {
        rig->options().chkTrajectory_Click(true);
        rig->begin(kMeteor);
        rig->shoot(kMiss);
        rig->options().chkTrajectory_Click(false);
        rig->shoot(kMiss);
    }
    const int draws = random.draws();
    picture().resize(1500, 700, 2);
    battle.replotField();
    EXPECT_TRUE(pixels() == other.pixels());
    EXPECT_EQ(random.draws(), draws);
}

TEST(LastRound, EndsTheSet) {
    StartedRig rig{1};
    rig.shoot(kDirectHitBy[0]);
    EXPECT_EQ(rig.log, (Log{"wait 1000", "summary Round", "hourglass", "wait 1000", "summary Set",
                            "close"}));
    EXPECT_EQ(std::pair(rig.shared.SetOver, rig.shared.Winner), std::pair(true, 1));
    EXPECT_EQ(rig.tally(), "1:1 100-100 1-0 100-0 100-0 1-0");  // the dead stay among the men left
    EXPECT_EQ(rig.settings.get("MeteorsSetting", "none"), "none");  // only leaving saves them
}

TEST(ComputersTurn, PausesFiresAndQueuesTheNextTurn) {
    BattleRig rig{"Computer"};
    rig.start();
    rig.options().chkSound_Click(true);
    rig.log.clear();
    rig.fire(kMiss);
    // Four clicks: 15 up for the lower ground, 2 degrees flatter for the distance, and then the
    // floor of 75 degrees, which is paid for with speed.
    EXPECT_EQ(rig.log, (Log{"sound click", "sound shot", "sound explosion", "wait 1000",
                            "sound click", "sound click", "sound click", "sound click", "yield",
                            "wait 250", "sound shot", "sound explosion", "queue"}));
    EXPECT_EQ(std::pair(rig.panel().commandsEnabled, rig.view.inputHeld), std::pair(false, true));
    rig.view.runQueue();
    EXPECT_EQ(std::pair(rig.panel().commandsEnabled, rig.state().Shooter), std::pair(true, 1));
}

TEST(WholeSet, AgainstTheComputerIsPinned) {
    // Seed 7, "Fair", wind on; the human walks speed and angle through a fixed pattern. Worked
    // out by a second program that shares no code with this one.
    basSkylob players;
    players.PlayerName = {"Ann", "Computer"};
    players.NumRounds = players.SkillLevel = 5;
    MemorySettings settings;
    settings.save("WindSetting", "1");
    HeadlessBattle set{players, 7, settings};
    while (!set.isOver()) {
        const int fired = set.battle().shared().RoundShots[1];
        set.shoot(250 + 50 * (fired % 12), 75 - 3 * (fired % 5));
    }
    EXPECT_EQ(set.battle().shared().RoundsWon, (PerSide<int>{1, 4}));
    EXPECT_EQ(set.battle().shared().TotalKills, (PerSide<int>{6, 200}));
    // The computer's shots: where it aimed and where they came down.
    std::ostringstream landings;
    for (const Shot& shot : set.battle().shots())
        if (shot.side == 2)
            landings << shot.speed << "/" << shot.angle << ">" << shot.landedAt.x << " ";
    EXPECT_EQ(landings.str(),
              "262/70>363 284/70>273 296/70>213 302/70>187 308/70>151 309/70>144 325/70>66 "
              "321/70>83 319/70>94 321/70>83 301/81>320 297/81>330 299/81>327 297/81>330 "
              "297/81>330 297/81>330 299/81>327 297/81>330 282/75>148 283/81>404 304/70>270 "
              "322/70>204 330/70>179 338/70>136 339/70>133 340/70>125 354/70>53 356/70>41 "
              "352/70>64 300/80>596 301/76>708 341/76>103 342/81>294 328/81>329 326/81>332 "
              "326/81>332 322/81>345 ");
}

}  // namespace skylob::test
