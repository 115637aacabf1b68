#include "battle/ComputerOpponent.h"

#include <gtest/gtest.h>

#include "tests/support/Fakes.h"

namespace skylob::test {

/// A computer at its turn on a field made for the case.
struct Thinker {
    Thinker(int skillLevel, std::deque<double> chance)
        : level{skillLevel}, random{std::move(chance)} {}

    void think(const Aim& aim) {
        state.aim[2] = aim;
        opponent.takeAim(level);
    }
    const Aim& aim() const { return state.aim[2]; }

    int level;
    ScriptedRandom random;
    BattleState state;
    Aims aims{state.aim, [] {}};
    ComputerOpponent opponent{state, aims, random};
};

TEST(ComputerOpponent, MeasuresTheField) {
    struct Row {
        const char* what;
        int level;
        double r;
        int pieceX1, pieceX2, pieceY1, pieceY2, peakHeight, wind, speed, angle;
        int newSpeed, newAngle, computerAngle;
    };
    // The mountain's top is in column 500.
    for (const Row& row : {
             Row{"top below", 4, .5, 200, 800, 100, 500, 400, 0, 300, 75, 220, 75, 72},
             Row{"top level", 4, .5, 200, 800, 100, 400, 400, 0, 300, 75, 240, 75, 70},
             Row{"steep", 4, .5, 200, 650, 100, 100, 800, 0, 300, 75, 336, 87, 87},
             Row{"over 90", 4, .5, 200, 600, 30, 30, 880, 0, 300, 75, 356, 90, 93},
             Row{"649", 4, .5, 151, 800, 100, 100, 400, 0, 300, 75, 300, 75, 70},
             Row{"650", 4, .5, 150, 800, 100, 100, 400, 0, 300, 75, 300, 74, 70},
             Row{"950, floor", 5, .9, 25, 975, 100, 100, 400, 0, 300, 75, 310, 70, 70},
             Row{"e -2", 6, .1, 200, 800, 100, 100, 400, -6, 300, 75, 292, 74, 70},
             Row{"c -29/5", 4, .5, 200, 800, 100, 129, 400, 0, 300, 75, 295, 75, 70},
             Row{"held at 100", 4, .5, 200, 800, 25, 800, 400, 20, 200, 75, 120, 75, 72},
             Row{"held at 999", 4, .5, 200, 800, 600, 100, 650, -10, 950, 75, 989, 75, 71},
             Row{"held at 90", 6, .9, 100, 800, 100, 100, 400, 0, 300, 90, 302, 88, 70},
         }) {
        SCOPED_TRACE(row.what);
        Thinker computer{row.level, {row.r}};
        BattleState& state = computer.state;
        state.field.PeakX = 500;
        state.field.TerrainHeight[500] = row.peakHeight;
        state.field.PieceX = {row.pieceX1, row.pieceX2};
        state.field.PieceY = {row.pieceY1, row.pieceY2};
        state.Wind = row.wind;
        computer.think({row.speed, row.angle});
        EXPECT_EQ(computer.aim().speed, row.newSpeed);
        EXPECT_EQ(computer.aim().angle, row.newAngle);
        EXPECT_EQ(state.ComputerAngle, row.computerAngle);
        EXPECT_EQ(state.AimDistance, row.pieceX2 - row.pieceX1);
        EXPECT_EQ(state.LastImpactX, 500);
        EXPECT_EQ(computer.random.draws(), 1);
    }
}

TEST(ComputerOpponent, CorrectsItsLastShot) {
    struct Row {
        const char* what;
        int level;
        std::deque<double> r;
        int impact, computerAngle, speed, angle;
        int newSpeed, newAngle;
    };
    // The mountain's top is in column 500, the target in column 200.
    for (const Row& row : {
             Row{"short of the top", 4, {.5}, 501, 74, 300, 75, 337, 77},
             Row{"floor + 2", 4, {.5}, 650, 74, 300, 76, 356, 78},
             Row{"floor + 3", 4, {.5}, 650, 74, 300, 77, 356, 77},
             Row{"at most 999 and 90", 4, {.5}, 900, 88, 990, 89, 999, 90},
             Row{"on the top", 4, {.5}, 500, 74, 300, 75, 320, 74},
             Row{"70 short", 4, {.5}, 270, 74, 300, 75, 320, 75},
             Row{"70 short, Fair, e -1", 5, {.1}, 270, 74, 300, 75, 314, 75},
             Row{"70 long, Poor, e -2", 6, {.1}, 130, 74, 300, 75, 282, 75},
             Row{"at least 100, then the floor", 4, {.5}, 130, 70, 105, 60, 140, 70},
             Row{"71 short", 4, {.5}, 271, 74, 300, 80, 300, 79},
             Row{"71 long", 4, {.5}, 129, 74, 300, 80, 300, 81},
             Row{"150 long", 4, {.5}, 50, 74, 300, 80, 300, 83},
             Row{"just inside", 4, {.5}, 2, 74, 300, 80, 300, 83},
             Row{"off the edge, k 3", 4, {.5, .1}, 1, 74, 300, 75, 312, 78},
             Row{"off the edge, k 5", 6, {.1, .9}, -17, 74, 300, 75, 320, 80},
             Row{"a floor over 90", 5, {.9}, 270, 93, 300, 90, 331, 90},
         }) {
        SCOPED_TRACE(row.what);
        Thinker computer{row.level, row.r};
        BattleState& state = computer.state;
        state.field.PeakX = 500;
        state.field.PieceX = {200, 800};
        state.LastImpactX = row.impact;
        state.AimDistance = 300;
        state.ComputerAngle = row.computerAngle;
        computer.think({row.speed, row.angle});
        EXPECT_EQ(computer.aim().speed, row.newSpeed);
        EXPECT_EQ(computer.aim().angle, row.newAngle);
        EXPECT_EQ(state.AimDistance, row.impact - 200);
        EXPECT_EQ(state.ComputerAngle, row.computerAngle);
        EXPECT_EQ(computer.random.draws(), static_cast<int>(row.r.size()));
    }
}

TEST(ComputerOpponent, MeasuresAgainAfterABullseyeOfItsMemory) {
    Thinker computer{4, {.5, .5}};
    computer.state.field.PeakX = 500;
    computer.state.field.PieceX = {200, 800};
    computer.state.LastImpactX = 200;
    computer.state.AimDistance = 300;
    computer.think({300, 75});
    EXPECT_EQ(computer.state.AimDistance, 0);
    computer.opponent.takeAim(computer.level);
    EXPECT_EQ(computer.state.AimDistance, 600);
    EXPECT_EQ(computer.state.LastImpactX, 500);
}

}  // namespace skylob::test
