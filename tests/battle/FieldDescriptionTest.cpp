#include "battle/FieldDescription.h"

#include <gtest/gtest.h>

#include "tests/support/BattleRig.h"

namespace skylob::test {

/// The field that chance of 0.5 makes is told of at BattleRig; its top is level from 529 to 569.
const std::string kMountain = "; the mountain between reaches 720 at column 529.";

std::string pieces(const std::string& left, const std::string& right) {
    return left + " at column 163, height 105; " + right + " at column 863, height 28" + kMountain;
}

struct FieldDescription : testing::Test, StartedRig {
    std::string told() const { return fieldDescription(state(), shared); }
};

TEST_F(FieldDescription, FollowsARound) {
    // Where these come down was worked out by a second program that shares no code with this one.
    const struct {
        Aim aim;
        std::string told;
    } steps[] = {
        {{100, 75},
         "Bob's turn, no wind: " + pieces("Ann's piece with 92 men", "Bob's piece with 100 men") +
             " Ann's last shell with speed 100 and angle 75 fell 633 columns short."},
        {{999, 75},
         "Ann's turn, no wind: " + pieces("Ann's piece with 92 men", "Bob's piece with 92 men") +
             " Ann's last shell with speed 100 and angle 75 fell 633 columns short; Bob's last "
             "shell with speed 999 and angle 75 left the field on the left."},
        {{999, 75},
         "Bob's turn, no wind: " + pieces("Ann's piece with 84 men", "Bob's piece with 92 men") +
             " Ann's last shell with speed 999 and angle 75 left the field on the right; Bob's "
             "last "
             "shell with speed 999 and angle 75 left the field on the left."},
        // (84 men + 1) / 10 are killed.
        {{392, 80},
         "Ann's turn, no wind: " + pieces("Ann's piece with 76 men", "Bob's piece with 84 men") +
             " Ann's last shell with speed 999 and angle 75 left the field on the right; Bob's "
             "last "
             "shell with speed 392 and angle 80 fell 9 columns past and killed 8 men."}};
    EXPECT_EQ(told(), "Ann's turn, no wind: " +
                          pieces("Ann's piece with 100 men", "Bob's piece with 100 men"));
    for (const auto& [aim, expected] : steps) {
        shoot(aim);
        EXPECT_EQ(told(), expected);
    }
    std::string waiting;  // for the summary
    pacer.onWait = [&] { waiting = told(); };
    shoot({381, 80});
    EXPECT_EQ(waiting, "The round is over: Ann has won it.");
    EXPECT_EQ(told(), "Bob's turn, no wind: " +
                          pieces("Ann's piece with 100 men", "Bob's piece with 100 men"));
}

TEST(FieldDescriptionOfAState, SaysYouToWhoPlaysTheComputer) {
    basSkylob shared;
    shared.PlayerName = {"Ann", "Computer"};
    BattleState state;
    EXPECT_EQ(fieldDescription(state, shared), "");
    state.field.PieceX = {20, 24};
    state.field.PieceY = {7, 8};
    const int heights[] = {7, 50, 41, 50, 8};
    for (int i = 0; i < 5; ++i)
        state.field.TerrainHeight[static_cast<std::size_t>(20 + i)] = heights[i];
    state.field.TerrainHeight[25] = 900;  // behind a piece
    state.turnNotice = {1, {1, 0}};
    state.Wind = -39;
    state.lastShot[2] = ShotReport{.side = 2, .speed = 300, .angle = 72, .beyond = -1};
    const std::string field =
        "your piece with 1 man at column 20, height 7; Computer's piece with 0 men at column 24, "
        "height 8; the mountain between reaches 50 at column 21. ";
    EXPECT_EQ(fieldDescription(state, shared),
              "Your turn, wind 39 to the left: " + field +
                  "Computer's last shell with speed 300 and angle 72 fell 1 column short.");
    state.turnNotice.side = 2;
    state.Wind = 6;
    state.lastShot[1] = ShotReport{.side = 1, .speed = 442, .angle = 75, .beyond = 27};
    EXPECT_EQ(fieldDescription(state, shared),
              "Computer's turn, wind 6 to the right: " + field +
                  "Your last shell with speed 442 and angle 75 fell 27 columns past; Computer's "
                  "last shell with speed 300 and angle 72 fell 1 column short.");
    for (const int winner : kSides) {
        shared.Winner = winner;
        EXPECT_EQ(fieldDescription(state, shared), winner == 1
                                                       ? "The round is over: you have won it."
                                                       : "The round is over: Computer has won it.");
    }
}

TEST(FieldDescriptionOfAState, TellsTheWindBoxInWords) {
    EXPECT_EQ(windInWords(0) + ", " + windInWords(30) + ", " + windInWords(-7),
              "Wind, Wind 30 to the right, Wind 7 to the left");
}

}  // namespace skylob::test
