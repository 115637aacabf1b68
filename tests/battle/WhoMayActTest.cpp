#include "battle/WhoMayAct.h"

#include <gtest/gtest.h>

#include <string>

namespace skylob::test {

TEST(WhoMayAct, IsOneTable) {
    using enum Phase;
    struct Row {
        Deed deed;
        const char *alone, *duringAnEffect;  // a letter a phase: now, later (after the effect)
    };
    for (const Row& row : {
             Row{Deed::Aim, "-nnn-n", "-nnn-n"},
             Row{Deed::Shoot, "--n---", "--l---"},
             Row{Deed::Quit, "--n---", "--l---"},
             Row{Deed::ChangeOption, "--nn--", "--nn--"},
             Row{Deed::ClickEffectBox, "--nn--", "--ll--"},
             Row{Deed::BeginEffect, "--n---", "------"},
         }) {
        std::string verdicts[2];
        for (const Phase phase : {Setup, Turn, Waiting, Asking, Shot, Left})
            for (const bool effect : {false, true})
                verdicts[effect] += "-nl"[static_cast<int>(verdictOn(row.deed, phase, effect))];
        EXPECT_EQ(verdicts[0], row.alone) << static_cast<int>(row.deed);
        EXPECT_EQ(verdicts[1], row.duringAnEffect) << static_cast<int>(row.deed);
    }
    // A shot may have ended the turn by the time that those behind it come.
    EXPECT_TRUE(isStillWanted(Deed::Quit, Waiting) && isStillWanted(Deed::ClickEffectBox, Shot));
    EXPECT_FALSE(isStillWanted(Deed::Quit, Shot) || isStillWanted(Deed::Shoot, Left));
}

}  // namespace skylob::test
