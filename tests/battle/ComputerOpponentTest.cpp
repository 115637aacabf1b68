#include "battle/ComputerOpponent.h"

#include <gtest/gtest.h>

#include "tests/support/Fakes.h"

namespace skylob::test {

/// A computer at its turn on a field made for the case, with the mountain's top in column 500.
struct Thinker {
    /// Speed, angle, floor of the angle, distance, last impact, draws.
    std::vector<int> think(int level, std::deque<double> chance, const Aim& aim) {
        random.script(std::move(chance));
        state.field.PeakX = 500;
        state.aim[2] = aim;
        opponent.takeAim(level);
        return {state.aim[2].speed, state.aim[2].angle, state.ComputerAngle,
                state.AimDistance,  state.LastImpactX,  random.draws()};
    }

    ScriptedRandom random{{}};
    BattleState state;
    Aims aims{state.aim, [] {}};
    ComputerOpponent opponent{state, aims, random};
};

TEST(ComputerOpponent, MeasuresTheField) {
    // Level, chance, columns and heights of the pieces, height of the top, wind, the aim before;
    // speed, angle, floor.
    using Pair = PerSide<int>;
    const std::tuple<const char*, int, double, Pair, Pair, int, int, Aim, int, int, int> rows[] = {
        {"top below", 4, .5, {200, 800}, {100, 500}, 400, 0, {300, 75}, 220, 75, 72},
        {"top level", 4, .5, {200, 800}, {100, 400}, 400, 0, {300, 75}, 240, 75, 70},
        {"steep", 4, .5, {200, 650}, {100, 100}, 800, 0, {300, 75}, 336, 87, 87},
        {"over 90", 4, .5, {200, 600}, {30, 30}, 880, 0, {300, 75}, 356, 90, 93},
        {"649", 4, .5, {151, 800}, {100, 100}, 400, 0, {300, 75}, 300, 75, 70},
        {"650", 4, .5, {150, 800}, {100, 100}, 400, 0, {300, 75}, 300, 74, 70},
        {"950, floor", 5, .9, {25, 975}, {100, 100}, 400, 0, {300, 75}, 310, 70, 70},
        {"e -2", 6, .1, {200, 800}, {100, 100}, 400, -6, {300, 75}, 292, 74, 70},
        {"c -29/5", 4, .5, {200, 800}, {100, 129}, 400, 0, {300, 75}, 295, 75, 70},
        {"held at 100", 4, .5, {200, 800}, {25, 800}, 400, 20, {200, 75}, 120, 75, 72},
        {"held at 999", 4, .5, {200, 800}, {600, 100}, 650, -10, {950, 75}, 989, 75, 71},
        {"held at 90", 6, .9, {100, 800}, {100, 100}, 400, 0, {300, 90}, 302, 88, 70}};
    for (const auto& [what, level, r, x, y, peak, wind, aim, speed, angle, floor] : rows) {
        Thinker computer;
        computer.state.field.PieceX = x;
        computer.state.field.PieceY = y;
        computer.state.field.TerrainHeight[500] = peak;
        computer.state.Wind = wind;
        EXPECT_EQ(computer.think(level, {r}, aim),
                  (std::vector{speed, angle, floor, x[2] - x[1], 500, 1}))
            << what;
    }
}

/// The target is in column 200.
struct SecondShot : Thinker {
    SecondShot(int impact, int floor) {
        state.field.PieceX = {200, 800};
        state.LastImpactX = impact;
        state.AimDistance = 300;
        state.ComputerAngle = floor;
    }
};

TEST(ComputerOpponent, CorrectsItsLastShot) {
    // Level, chance, impact, floor, the aim before; speed, angle.
    const std::tuple<const char*, int, std::deque<double>, int, int, Aim, int, int> rows[] = {
        {"short of the top", 4, {.5}, 501, 74, {300, 75}, 337, 77},
        {"floor + 2", 4, {.5}, 650, 74, {300, 76}, 356, 78},
        {"floor + 3", 4, {.5}, 650, 74, {300, 77}, 356, 77},
        {"at most 999 and 90", 4, {.5}, 900, 88, {990, 89}, 999, 90},
        {"on the top", 4, {.5}, 500, 74, {300, 75}, 320, 74},
        {"70 short", 4, {.5}, 270, 74, {300, 75}, 320, 75},
        {"70 short, Fair, e -1", 5, {.1}, 270, 74, {300, 75}, 314, 75},
        {"70 long, Poor, e -2", 6, {.1}, 130, 74, {300, 75}, 282, 75},
        {"at least 100, then the floor", 4, {.5}, 130, 70, {105, 60}, 140, 70},
        {"71 short", 4, {.5}, 271, 74, {300, 80}, 300, 79},
        {"71 long", 4, {.5}, 129, 74, {300, 80}, 300, 81},
        {"150 long", 4, {.5}, 50, 74, {300, 80}, 300, 83},
        {"just inside", 4, {.5}, 2, 74, {300, 80}, 300, 83},
        {"off the edge, k 3", 4, {.5, .1}, 1, 74, {300, 75}, 312, 78},
        {"off the edge, k 5", 6, {.1, .9}, -17, 74, {300, 75}, 320, 80},
        {"a floor over 90", 5, {.9}, 270, 93, {300, 90}, 331, 90}};
    for (const auto& [what, level, r, impact, floor, aim, speed, angle] : rows) {
        SecondShot computer{impact, floor};
        const int draws = static_cast<int>(r.size());
        EXPECT_EQ(computer.think(level, r, aim),
                  (std::vector{speed, angle, floor, impact - 200, impact, draws}))
            << what;
    }
}

TEST(ComputerOpponent, MeasuresAgainAfterABullseyeOfItsMemory) {
    SecondShot computer{200, 70};
    EXPECT_EQ(computer.think(4, {.5}, {300, 75}).at(3), 0);
    const auto again = computer.think(4, {.5}, {300, 75});
    EXPECT_EQ(std::pair(again.at(3), again.at(4)), std::pair(600, 500));
}

}  // namespace skylob::test
