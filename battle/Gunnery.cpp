#include "battle/Gunnery.h"

#include <cstdlib>

namespace skylob {

namespace {
constexpr int kFieldMiddle = kColumns / 2;
}

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

ShotReport reportOf(const Shot& shot, const BattleState& state) {
    const int targetX = state.field.PieceX[opponentOf(shot.side)], x = shot.landedAt.x;
    ShotReport report;
    report.side = shot.side;
    report.speed = shot.speed;
    report.angle = shot.angle;
    report.landing = shot.landing;
    report.landedLeft = x <= kFieldMiddle;
    report.beyond = shot.side == kLeftSide ? x - targetX : targetX - x;
    if (shot.landing == Landing::NearMiss) report.killed = state.NearMissKills;
    return report;
}

std::optional<FieldPoint> markOf(const Shot& shot, const Battlefield& field) {
    if (shot.landing == Landing::OutOfBounds) return std::nullopt;
    const int x = shot.landedAt.x;
    return FieldPoint{x, field.heightAt(x)};
}

FieldPoint blastOf(const Shot& shot, const BattleState& state) {
    if (shot.landing != Landing::NearMiss) return shot.landedAt;
    // Quirk "blast on the target": a near miss is shown where it does its harm.
    return {state.field.PieceX[opponentOf(shot.side)], shot.landedAt.y};
}

}  // namespace skylob
