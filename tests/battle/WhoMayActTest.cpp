#include "battle/WhoMayAct.h"

#include <gtest/gtest.h>

#include <string>

namespace skylob::test {

TEST(WhoMayAct, IsOneTable) {
    using enum Deed;
    using enum Phase;
    std::string verdicts;  // a letter a phase, without and during an effect: now, later (after it)
    for (const Deed deed :
         {Deed::Aim, Shoot, Quit, ChangeOption, ClickEffectBox, BeginEffect, ReadRules})
        for (const bool effect : {false, true}) {
            verdicts += effect ? '/' : ' ';
            for (const Phase phase : {Setup, Turn, Waiting, Watching, Asking, Shot, Left})
                verdicts += "-nl"[static_cast<int>(verdictOn(deed, phase, effect))];
        }
    EXPECT_EQ(verdicts,
              " -nn-n-n/-nn-n-n --n----/--l---- --nn---/--ll--- --n-n--/--n-n-- --n-n--/--l-l-- "
              "--n----/------- --n----/-------");
    // A shot may have ended the turn by the time that those behind it come.
    EXPECT_TRUE(isStillWanted(Quit, Waiting));
    EXPECT_TRUE(isStillWanted(ClickEffectBox, Shot));
    EXPECT_FALSE(isStillWanted(Quit, Shot));
    EXPECT_FALSE(isStillWanted(Shoot, Left));
}

}  // namespace skylob::test
