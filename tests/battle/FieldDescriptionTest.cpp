#include "battle/FieldDescription.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace skylob::test {

TEST(FieldDescription, TellsTurnFieldAndShots) {
    basSkylob shared;
    shared.PlayerName = {"Ann", "Bob"};
    BattleState state;
    const auto told = [&] { return fieldDescription(state, shared); };
    EXPECT_EQ(told(), "");
    state.field.PieceX = {20, 24};
    state.field.PieceY = {7, 8};
    const int heights[] = {900, 7, 50, 41, 50, 8, 900};  // the outer two are behind the pieces
    std::copy(std::begin(heights), std::end(heights), &state.field.TerrainHeight[19]);
    state.turnNotice = {1, {1, 0}};
    const std::string field =
        " piece with 1 man at column 20, height 7; Bob's piece with 0 men at column 24, height 8; "
        "the mountain between reaches 50 at column 21.";
    EXPECT_EQ(told(), "Ann's turn, no wind: Ann's" + field);
    state.Wind = -39;
    state.lastShot[2] = ShotReport{.speed = 300, .angle = 72, .beyond = -1};
    EXPECT_EQ(told(), "Ann's turn, wind 39 to the left: Ann's" + field +
                          " Bob's last shell with speed 300 and angle 72 fell 1 column short.");
    state.turnNotice.side = 2;
    state.Wind = 6;
    state.lastShot[1] = ShotReport{
        .speed = 442, .angle = 75, .landing = Landing::NearMiss, .beyond = 9, .killed = 8};
    state.lastShot[2]->landing = Landing::OutOfBounds;
    EXPECT_EQ(told(), "Bob's turn, wind 6 to the right: Ann's" + field +
                          " Ann's last shell with speed 442 and angle 75 fell 9 columns past and "
                          "killed 8 men; Bob's last shell with speed 300 and angle 72 left the "
                          "field on the right.");
    shared.PlayerName[2] = "Computer";
    EXPECT_EQ(told().substr(0, 56), "Computer's turn, wind 6 to the right: your piece with 1 ");
    state.turnNotice.side = 1;
    EXPECT_EQ(told().substr(0, 10), "Your turn,");
    EXPECT_NE(told().find(". Your last shell with"), std::string::npos);
    shared.Winner = 1;
    EXPECT_EQ(told(), "The round is over: you have won it.");
    shared.Winner = 2;
    EXPECT_EQ(told(), "The round is over: Computer has won it.");
    EXPECT_EQ(windInWords(0) + windInWords(-7), "WindWind 7 to the left");
}

}  // namespace skylob::test
