#include <gtest/gtest.h>

#include "tests/support/BattleRig.h"

namespace skylob::test {

struct ShotReports : testing::Test, StartedRig {
    /// What the side's frame says of its last shot, and the mark of it on the ground.
    std::string last(int side) const {
        const SidePanel& of = panel().side[side];
        const auto& mark = battle.scene().lastLanding[side];
        return of.labelLastSpeed + ", " + of.labelLastAngle + ", " + of.labelLastLanding + " " +
               (mark ? std::to_string(mark->x) + "/" + std::to_string(mark->y) : "-");
    }
};

TEST_F(ShotReports, TellWhatEveryShotDid) {
    // Where these come down was worked out by a second program that shares no code with this one.
    struct Step {
        double r;  // of the desertion: 1 to 15 men
        Aim aim;
        std::string report, last, score;
    };
    const Step steps[] = {
        {.5,
         {100, 75},
         "Ann, 100 at 75°: 633 columns short of Bob. 8 men deserted Ann.",
         "was 100, was 75, 633 short 230/105",
         "0 : 0"},
        {.5,
         {999, 75},
         "Bob, 999 at 75°: out of bounds on the left. 8 men deserted Bob.",
         "was 999, was 75, out left -",
         "0 : 0"},
        {0,
         {999, 75},
         "Ann, 999 at 75°: out of bounds on the right. 1 man deserted Ann.",
         "was 999, was 75, out right -",
         "0 : 0"},
        // (91 men + 1) / 10 are killed, and of Bob's 84 then 85 / 11.
        {.5,
         {392, 80},
         "Bob, 392 at 80°: near miss 9 columns past Ann, 9 men killed. 8 men deserted Bob.",
         "was 392, was 80, 9 past 154/105",
         "0 : 0"},
        {.5,
         {379, 80},
         "Ann, 379 at 80°: near miss 10 columns short of Bob, 8 men killed. 8 men deserted Ann.",
         "was 379, was 80, 10 short 853/28",
         "0 : 0"},
        {.5,
         {410, 80},
         "Bob, 410 at 80°: 80 columns past Ann. 8 men deserted Bob.",
         "was 410, was 80, 80 past 83/105",
         "0 : 0"},
        // The next round has begun when these have been told, and forgets what was shot before.
        {.5,
         {381, 80},
         "Ann, 381 at 80°: direct hit on Bob. Ann wins the round.",
         ", ,  -",
         "1 : 0"},
        {.5,
         {100, 90},
         "Bob, 100 at 90°: hit Bob's own piece. Ann wins the round.",
         ", ,  -",
         "2 : 0"},
    };
    std::string before = ", ,  -";
    for (const Step& step : steps) {
        const int side = state().Shooter, round = state().RoundNumber;
        std::string waiting;  // for the summary
        pacer.onWait = [&] { waiting = panel().labelReport + panel().labelScore; };
        view.onShowField = [&] {
            if (state().RoundNumber != round) return;
            EXPECT_EQ(last(opponentOf(side)), before);
        };
        random.script({step.r});
        shoot(step.aim);
        EXPECT_EQ(panel().labelReport, step.report);
        EXPECT_EQ(last(side), step.last);
        EXPECT_EQ(panel().labelScore, step.score);
        EXPECT_EQ(waiting, step.score == "0 : 0" ? "" : step.report + step.score);
        before = step.last;
    }
    EXPECT_EQ(panel().score, "Rounds won: Ann 2, Bob 0");
}

TEST(ShotReport, SaysWhoHadNoMenLeft) {
    for (const bool beside : {false, true}) {
        StartedRig rig;
        for (int shot = 1; shot <= 24; ++shot) rig.shoot({100, 75});
        rig.shoot({100, 75});  // of 100 men 12 times 8 have gone before
        EXPECT_EQ(rig.panel().labelReport,
                  "Ann, 100 at 75°: 633 columns short of Bob. 4 men deserted Ann.");
        rig.boxes.answers = {BoxAnswer::Ok};
        rig.boxes.onShow = [&] {
            EXPECT_EQ(rig.panel().labelReport,
                      "Bob, 100 at 75°: 633 columns short of Ann. 4 men deserted Bob.");
        };
        rig.shoot(beside ? Aim{392, 80} : Aim{100, 75});
        EXPECT_EQ(rig.panel().labelReport,
                  beside ? "Bob, 392 at 80°: near miss 9 columns past Ann, who had no men left. "
                           "Bob wins the round."
                         : "Ann has no men left to shoot. Bob wins the round.");
        EXPECT_EQ(rig.panel().labelScore, "0 : 1");
    }
}

TEST(ShotReport, TellsOfTheComputerToo) {
    BattleRig rig{"Computer"};
    rig.start();
    rig.fire({100, 75});
    const std::string mine = rig.panel().labelReport;
    rig.view.runQueue();
    EXPECT_EQ(mine.substr(0, 4) + rig.panel().labelReport.substr(0, 9), "Ann,Computer,");
}

}  // namespace skylob::test
