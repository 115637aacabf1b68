#include "arena/Match.h"

#include "battle/HeadlessBattle.h"
#include "players/SetResult.h"

namespace skylob::arena {

namespace {

/// Lets the player see what concerns it, and keeps the score.
class Scorer final : public BattleObserver {
  public:
    Scorer(Player& player, Score& score) : m_player{player}, m_score{score} {}

    void roundBegun(const BattleState& state) override {
        m_player.beginRound(state.field);
        m_isFirst = state.RoundNumber == 1;
        m_computersShots = 0;
    }

    void shotDone(const Shot& shot, const ShotReport& report, const BattleState&) override {
        if (shot.side == kLeftSide)
            m_player.seeLanding(report.beyond);
        else
            ++m_computersShots;
        if (report.end == RoundEnd::SelfHit)
            countRound(opponentOf(shot.side));
        else if (report.end != RoundEnd::None)
            countRound(shot.side);
        if (shot.side == kRightSide && shot.landing == Landing::DirectHit) countHit();
    }

    void turnLost(int side) override { countRound(opponentOf(side)); }

    void setEnded(const basSkylob& shared) override {
        ++m_score.sets;
        if (setWinner(shared) == kRightSide) ++m_score.setsWon;
    }

  private:
    void countRound(int winner) {
        ++m_score.rounds;
        if (winner == kRightSide) ++m_score.roundsWon;
    }

    void countHit() {
        m_score.shotsToHit.push_back(m_computersShots);
        if (m_isFirst) m_score.shotsToHitFirst.push_back(m_computersShots);
    }

    Player& m_player;
    Score& m_score;
    bool m_isFirst = false;
    int m_computersShots = 0;
};

}  // namespace

Score play(const Match& match, Player& player) {
    Score score;
    Scorer scorer{player, score};
    basSkylob players;
    players.PlayerName = {"Ada", std::string{kComputerName}};
    players.SkillLevel = match.skillLevel;
    players.NumRounds = kRoundsInASet;
    MemorySettings settings;
    settings.save("WindSetting", match.wind ? "1" : "0");
    for (int set = 0; set < match.sets; ++set) {
        HeadlessBattle battle{players, match.seed + static_cast<std::uint64_t>(set), settings,
                              &scorer};
        while (!battle.isOver()) {
            const auto [speed, angle] = player.nextAim();
            battle.shoot(speed, angle);
        }
    }
    return score;
}

}  // namespace skylob::arena
