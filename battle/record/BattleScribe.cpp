#include "battle/record/BattleScribe.h"

#include "battle/record/RecordWords.h"

namespace skylob {

namespace {

bool isTicked(Box box, const BattleState& state) {
    return state.*kTickedBoxes.at(static_cast<std::size_t>(box));
}

}  // namespace

void BattleScribe::setBegins(const basSkylob& shared, const BattleState& state) {
    RecordHeader header;
    header.seed = m_random.seed();
    header.names = shared.PlayerName;
    header.skillLevel = shared.SkillLevel;
    header.rounds = shared.NumRounds;
    header.gameSpeed = shared.GameSpeed;
    for (std::size_t box = 0; box < kTickedBoxes.size(); ++box)
        if (isTicked(Box(box), state)) header.ticked.push_back(Box(box));
    begin(header);
}

void BattleScribe::rulesDraw() {
    m_draws = m_random.position();
}

void BattleScribe::roundBegun(const BattleState& state) {
    const Battlefield& field = state.field;
    RoundLine line{state.RoundNumber, m_draws, state.Shooter, state.Wind, {}, fingerprint(field)};
    for (const int side : kSides) line.pieces[side] = {field.PieceX[side], field.PieceY[side]};
    add(line);
}

void BattleScribe::shotDone(const Shot& shot, const ShotReport& report, const BattleState& state) {
    add(ShotLine{shot.side, m_draws, shot.speed, shot.angle, shot.landedAt, shot.landing,
                 report.killed, report.deserted, state.MenLeft});
}

void BattleScribe::turnLost(int side) {
    add(NoMenLine{side});
}

void BattleScribe::boxClicked(Box box, const BattleState& state) {
    add(BoxLine{box, isTicked(box, state), m_draws, state.Wind});
}

void BattleScribe::setEnded(const basSkylob& shared) {
    add(EndLine{shared.RoundsWon, shared.TotalKills});
}

void BattleScribe::setLeft() {
    add(LeftLine{});
}

}  // namespace skylob
