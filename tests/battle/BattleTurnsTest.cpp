#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/SkyRig.h"

namespace skylob::test {

// On the rig's field, with the mountain between the pieces, these shots are known to land so.
// Worked out by a second program that shares no code with this one.
constexpr Aim kMiss{100, 75}, kSelfHit{100, 90}, kOutOfBounds{999, 45};
constexpr Aim kDirectHitBy[] = {{381, 80}, {390, 80}};  // sides 1 and 2
constexpr Aim kNearMissBy[] = {{379, 80}, {392, 80}};   // 10 and 9 columns beside the piece

TEST(FirstShooter, IsDrawnBetweenTwoPeople) {
    for (const auto& [r, side] : {std::pair{0.1, 1}, std::pair{0.9, 2}}) {
        BattleRig rig;
        rig.random.script({r});
        rig.start();
        EXPECT_EQ(rig.state().Shooter, side);
    }
}

TEST(StartRound, SetsUpBothSides) {
    StartedRig rig;
    EXPECT_EQ(rig.state().penWidth, 2);  // of the ground's lines
    for (const int side : {1, 2}) {
        EXPECT_EQ(rig.panel().side[side].labelSpeed, "Speed: 300");
        EXPECT_EQ(rig.panel().side[side].labelAngle, "Angle:   75");
        EXPECT_EQ(rig.panel().side[side].labelMenLeft, "Men Left: 100");
        EXPECT_EQ(rig.panel().side[side].enabled, side == 1);
    }
    EXPECT_EQ(rig.panel().labelRoundNumber, "Round 1 of 5");
    EXPECT_TRUE(rig.panel().commandsEnabled && !rig.view.inputHeld);
    BattleRig narrow;
    narrow.view.width = 800;
    narrow.view.onShowField = [&] { EXPECT_TRUE(narrow.view.inputHeld); };
    narrow.shared.RoundsWon = narrow.shared.TotalKills = narrow.shared.RoundShots = {3, 9};
    narrow.start();
    EXPECT_EQ(narrow.state().penWidth, 1);
    const PerSide<int> none{0, 0};  // of the set before
    EXPECT_EQ(narrow.shared.RoundsWon, none);
    EXPECT_EQ(narrow.shared.TotalKills, none);
    EXPECT_EQ(narrow.shared.RoundShots, none);
    rig.start();  // as when a box closes over the battle; it would draw side 2
    EXPECT_EQ(rig.state().Shooter, 1);
}

TEST(Miss, CostsTheShooterDesertersAndPassesTheTurn) {
    StartedRig rig;
    rig.random.script({0.999});
    rig.shoot(kMiss);
    EXPECT_EQ(rig.state().MenLeft, (PerSide<int>{85, 100}));
    EXPECT_EQ(rig.state().Shooter, 2);
    EXPECT_TRUE(rig.panel().side[2].enabled && !rig.panel().side[1].enabled);
    EXPECT_EQ(rig.panel().side[1].labelMenLeft, "Men Left: 85");
    EXPECT_EQ(rig.panel().side[1].menLeft, 85);
    rig.random.script({0});
    rig.shoot(kOutOfBounds);
    EXPECT_EQ(rig.state().MenLeft, (PerSide<int>{85, 99}));
    EXPECT_EQ(rig.shared.RoundShots, (PerSide<int>{1, 1}));
    EXPECT_EQ(rig.shared.RoundKills, (PerSide<int>{0, 0}));
}

TEST(DirectHit, CreditsTheEnemysMenAndLeavesThem) {
    StartedRig rig;
    rig.shoot(kMiss);  // 8 desert
    rig.shoot(kMiss);
    rig.shoot(kDirectHitBy[0]);
    EXPECT_EQ(rig.shared.TotalKills, (PerSide<int>{92, 0}));
    EXPECT_EQ(rig.shared.RoundsWon, (PerSide<int>{1, 0}));
    // The loser opens the next round, for which everything of the round starts afresh.
    EXPECT_EQ(rig.state().Shooter, 2);
    EXPECT_EQ(rig.state().RoundNumber, 2);
    EXPECT_EQ(rig.state().MenLeft, (PerSide<int>{100, 100}));
    EXPECT_EQ(rig.shared.RoundKills, (PerSide<int>{0, 0}));
    EXPECT_EQ(rig.shared.RoundShots, (PerSide<int>{0, 0}));
    rig.shoot(kDirectHitBy[1]);
    EXPECT_EQ(rig.shared.TotalKills, (PerSide<int>{92, 100}));
    EXPECT_EQ(rig.state().Shooter, 1);
    rig.shoot(kSelfHit);  // credits the opponent
    EXPECT_EQ(rig.shared.TotalKills, (PerSide<int>{92, 200}));
    EXPECT_EQ(rig.shared.RoundsWon, (PerSide<int>{1, 2}));
    EXPECT_EQ(rig.state().Shooter, 1);
}

TEST(NearMiss, KillsSomeOfTheTargetAndExplodesOnIt) {
    SkyRig rig;
    const Colour ground = rig.picture().pixel(853, 26);
    rig.shoot(kNearMissBy[0]);
    EXPECT_EQ(rig.battle.shots()[0].landedAt, (FieldPoint{853, 28}));
    EXPECT_EQ(rig.picture().pixel(853, 26), ground);
    EXPECT_EQ(rig.picture().pixel(863, 26), kBlack);         // the dot that a blast leaves
    EXPECT_EQ(rig.state().MenLeft, (PerSide<int>{92, 91}));  // 101 / 11 = 9.18
    rig.shoot(kMiss);
    EXPECT_EQ(rig.shared.RoundKills, (PerSide<int>{9, 0}));
    EXPECT_EQ(rig.state().MenLeft, (PerSide<int>{92, 83}));
}

TEST(SideWithoutMen, LosesAtTheStartOfItsTurnOrByANearMiss) {
    for (const bool beside : {false, true}) {
        StartedRig rig;
        for (int shot = 1; shot <= 25; ++shot) rig.shoot(kMiss);
        EXPECT_EQ(rig.state().MenLeft, (PerSide<int>{0, 4}));  // 13 times 8, but never below 0
        rig.boxes.answers = {BoxAnswer::Ok};
        rig.boxes.onShow = [&] { EXPECT_EQ(rig.panel().side[2].labelMenLeft, "Men Left: 0"); };
        rig.shoot(beside ? kNearMissBy[1] : kMiss);
        const Log box{
            "Ann loses this round!: Ann-\r\n\r\nYou can't shoot because you have no men "
            "left! (!)"};
        EXPECT_EQ(rig.boxes.shown, beside ? Log{} : box);
        EXPECT_EQ(rig.shared.RoundsWon, (PerSide<int>{0, 1}));
        EXPECT_EQ(rig.shared.TotalKills, (PerSide<int>{0, 0}));  // deserters are nobody's kills
        EXPECT_EQ(rig.state().Shooter, 1);
    }
}

TEST(Shot, DisablesEverythingAndHoldsInput) {
    StartedRig rig;
    rig.options().chkSound_Click(true);
    bool seen = false;
    rig.view.onShowField = [&] {
        seen = true;
        EXPECT_FALSE(rig.panel().commandsEnabled || rig.panel().side[1].enabled);
        EXPECT_FALSE(rig.panel().timerMeteors || rig.panel().timerLightning);
        EXPECT_TRUE(rig.view.inputHeld);
        // Clicks that come through all the same do nothing.
        rig.battle.FieldPiece_Click();
        rig.battle.cmdQuit_Click();
    };
    rig.battle.cmdShoot_Click();
    EXPECT_TRUE(seen);
    EXPECT_EQ(rig.log, (Log{"sound shot", "sound explosion", "release input"}));
    EXPECT_EQ(rig.battle.shots().size(), 1u);
    EXPECT_TRUE(rig.bothTimersRun());
}

TEST(Shot, IsPacedByTheGameSpeedAndTracedOnDemand) {
    SkyRig rig;
    rig.options().setGameSpeed(60);
    rig.options().chkTrajectory_Click(false);
    rig.fire(kOutOfBounds);
    EXPECT_EQ(rig.pacer.counts.at(1), 19'500'001);
    // The muzzle is 8 above the ground.
    EXPECT_EQ(rig.picture().pixel(163, 113), kBlack);
    rig.options().chkTrajectory_Click(true);
    rig.fire(kOutOfBounds);
    EXPECT_NE(rig.picture().pixel(863, 36), kBlack);
    rig.fire(kMiss);
    EXPECT_EQ(rig.pacer.counts.at(1), 19'500'001);  // of the explosion
}

TEST(Stars, HaveTheWidthThatTheRoundBeforeLeftThePenAt) {
    SkyRig rig;
    const auto expectWidth = [&](int width) {
        const auto& star = rig.state().field.stars.at(400);
        const auto shown = rig.pixels();
        EXPECT_EQ(rig.picture().pixel(star.x + 1, star.y - 1) == star.colour, width == 2);
        rig.shoot(kMiss);  // leaves the pen at 1
        rig.battle.redrawField();
        EXPECT_TRUE(rig.pixels() == shown);
    };
    rig.battle.redrawField();  // with the pen still at the ground's width
    expectWidth(1);
    rig.shoot(kSelfHit);
    expectWidth(1);
    rig.shoot(kSelfHit);
    rig.boxes.answers = {BoxAnswer::Ok};
    while (rig.state().RoundNumber == 3) rig.shoot({999, 75});  // out of bounds, over the top
    expectWidth(2);
}

TEST(LastRound, EndsTheSet) {
    StartedRig rig{1};
    rig.shoot(kDirectHitBy[0]);
    EXPECT_EQ(rig.log, (Log{"wait 1000", "summary Round", "hourglass", "wait 1000", "summary Set",
                            "close"}));
    EXPECT_TRUE(rig.shared.SetOver);
    EXPECT_EQ(rig.shared.Winner, 1);
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
    EXPECT_TRUE(!rig.panel().commandsEnabled && rig.view.inputHeld);
    rig.view.runQueue();
    EXPECT_TRUE(rig.panel().commandsEnabled);
    EXPECT_EQ(rig.state().Shooter, 1);
}

TEST(WholeSet, AgainstTheComputerIsPinned) {
    // Seed 7, "Fair", wind on; the human walks speed and angle through a fixed pattern. Worked
    // out by a second program that shares no code with this one.
    basSkylob players;
    players.PlayerName = {"Ann", "Computer"};
    players.NumRounds = 5;
    players.SkillLevel = 5;
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
