#include "players/SetResult.h"

namespace skylob {

int SetScore(const basSkylob& shared, int side) {
    return shared.TotalKills[side] / 3 + 7 * shared.RoundsWon[side];
}

int setWinner(const basSkylob& shared) {
    return SetScore(shared, 1) > SetScore(shared, 2) ? 1 : 2;
}

}  // namespace skylob
