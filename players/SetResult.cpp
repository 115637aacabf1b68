#include "players/SetResult.h"

namespace skylob {

int SetScore(const basSkylob& shared, int side) {
    return shared.TotalKills[side] / 3 + 7 * shared.RoundsWon[side];
}

int setWinner(const basSkylob& shared) {
    // Quirk "tie for side 2": somebody has to win.
    return SetScore(shared, 1) > SetScore(shared, 2) ? 1 : 2;
}

}  // namespace skylob
