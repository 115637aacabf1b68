#pragma once

#include "base/basSkylob.h"
#include "battle/BattleState.h"
#include "battle/FieldAnimation.h"
#include "battle/Landing.h"
#include "battle/ShellFlight.h"
#include "battle/ShotReport.h"

namespace skylob {

/// One shell of the set, as it was fired and as it came down.
struct Shot {
    int side = 0, speed = 0, angle = 0;
    FieldPoint landedAt;
    Landing landing = Landing::Miss;
};

/// Flies a shell of state.Shooter, as it has aimed, and shows it doing so.
Shot flyShot(const BattleState& state, int gameSpeed, FieldAnimation& animation);

/// Sets SelfHit, DirectHit, NearMiss and NearMissKills as a shot of state.Shooter has landed.
void judgeShot(const Shot& shot, basSkylob& shared, BattleState& state);

/// What there is to tell of a shot that has been judged, as far as it is known before it is
/// credited.
ShotReport reportOf(const Shot& shot, const BattleState& state);

/// The place on the ground where a shot has come down; none where it has left the field.
std::optional<FieldPoint> markOf(const Shot& shot, const Battlefield& field);

/// Where the blast is seen: at the landing, but that of a near miss on the target.
FieldPoint blastOf(const Shot& shot, const BattleState& state);

}  // namespace skylob
