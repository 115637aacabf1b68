#include "battle/Gunnery.h"

#include <cstdlib>

namespace skylob {

Shot flyShot(const BattleState& state, int gameSpeed, FieldAnimation& animation) {
    const int side = state.Shooter;
    const Battlefield& field = state.field;
    const auto& [speed, angle] = state.aim[side];
    const Launch launch{side, speed, angle, field.PieceX[side], field.PieceY[side], state.Wind};
    const Trail trail = state.ShowTrajectory ? Trail::Coloured : Trail::None;
    const FieldPoint at = flyShell(launch, field, trail, animation, FlightDelayCount(gameSpeed));
    return {side, speed, angle, at,
            classifyLanding(at.x, field.PieceX[side], field.PieceX[opponentOf(side)])};
}

void judgeShot(const Shot& shot, basSkylob& shared, BattleState& state) {
    shared.SelfHit = shot.landing == Landing::SelfHit;
    shared.DirectHit = shot.landing == Landing::DirectHit;
    if (shot.landing != Landing::NearMiss) return;
    const int target = opponentOf(shot.side);
    shared.NearMiss = true;
    state.NearMissKills = nearMissKills(state.MenLeft[target],
                                        std::abs(shot.landedAt.x - state.field.PieceX[target]));
}

FieldPoint blastOf(const Shot& shot, const BattleState& state) {
    if (shot.landing != Landing::NearMiss) return shot.landedAt;
    // Quirk "blast on the target": a near miss is shown where it does its harm.
    return {state.field.PieceX[opponentOf(shot.side)], shot.landedAt.y};
}

}  // namespace skylob
