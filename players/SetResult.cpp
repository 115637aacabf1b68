#include "players/SetResult.h"

namespace skylob {

namespace {
constexpr int kPointsARound = 7, kKillsAPoint = 3;
}

int SetScore(const basSkylob& shared, int side) {
    return shared.TotalKills[side] / kKillsAPoint + kPointsARound * shared.RoundsWon[side];
}

std::string setReckoning(const basSkylob& shared, int side) {
    const auto text = [](int number) { return std::to_string(number); };
    return text(shared.RoundsWon[side]) + " × " + text(kPointsARound) + " + " +
           text(shared.TotalKills[side]) + " ÷ " + text(kKillsAPoint) + " = " +
           text(SetScore(shared, side));
}

int setWinner(const basSkylob& shared) {
    // Quirk "tie for side 2": somebody has to win.
    return SetScore(shared, 1) > SetScore(shared, 2) ? 1 : 2;
}

}  // namespace skylob
