#include "battle/Casualties.h"

#include <algorithm>

namespace skylob {

namespace {

void creditKills(basSkylob& shared, int side, int kills) {
    shared.RoundKills[side] += kills;
    shared.TotalKills[side] += kills;
}

}  // namespace

void creditShot(basSkylob& shared, BattleState& state) {
    const int shooter = state.Shooter, target = opponentOf(shooter);
    // Quirk "dead in Men Left": those who die in a hit are credited, but stay in MenLeft.
    if (shared.SelfHit) {
        shared.Winner = target;
        creditKills(shared, target, state.MenLeft[shooter]);
    }
    if (shared.DirectHit) {
        shared.Winner = shooter;
        creditKills(shared, shooter, state.MenLeft[target]);
    }
    if (shared.NearMiss) {
        int& men = state.MenLeft[target];
        men = std::max(0, men - state.NearMissKills);
        creditKills(shared, shooter, state.NearMissKills);
        // Quirk "last man standing": only deserters can have brought it to 0.
        if (men == 0) shared.Winner = shooter;
    }
}

int desert(BattleState& state, RandomSource& random) {
    int& men = state.MenLeft[state.Shooter];
    const int deserters = std::min(men, RandomInt(random, 1, 15));
    men -= deserters;
    return deserters;
}

}  // namespace skylob
