// Sets with commands at any time, also in the middle of meteors and storms. After each command all
// figures are within their ranges and agree, a closed battle goes on no more, and the set that was
// written down is read and played again without a difference.
#include "battle/record/BattleReplay.h"
#include "fuzz/PlayedBattle.h"

using namespace skylob;
using fuzz::require;

static void checkFigures(const Battle& battle) {
    const BattleState& state = battle.state();
    const basSkylob& shared = battle.shared();
    int roundsWon = 0;
    for (const int side : kSides) {
        const Aim& aim = state.aim[side];
        require(state.MenLeft[side] >= 0 && state.MenLeft[side] <= 100, "a side has 0 to 100 men");
        require(kSpeedRange.held(aim.speed) == aim.speed, "a speed is within its bar");
        require(kAngleRange.held(aim.angle) == aim.angle, "an angle is within its bar");
        require(shared.RoundKills[side] <= shared.TotalKills[side],
                "a round's kills are the set's");
        roundsWon += shared.RoundsWon[side];
    }
    require(kGameSpeedRange.held(shared.GameSpeed) == shared.GameSpeed, "the speed is 1 to 99");
    require(state.Shooter == kLeftSide || state.Shooter == kRightSide, "it is somebody's turn");
    require(std::abs(state.Wind) <= 39, "the wind is 39 at most");
    require(roundsWon == state.RoundNumber - (shared.SetOver ? 0 : 1), "each round has one winner");
    require(state.RoundNumber <= shared.NumRounds, "a set has no more rounds than were agreed");
    require(!battle.effectIsRunning(), "no meteor flies on by itself");
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::Input input{bytes, size};
    fuzz::PlayedBattle played{input};
    const Battle& battle = played.battle();
    while (!input.isOver() && !played.isClosed()) {
        played.command();
        checkFigures(battle);
    }
    if (!played.isClosed()) played.leave();
    require(played.isClosed(), "a set can be left whenever it waits for a player");
    const std::string recorded = played.recorded();
    while (!input.isOver()) played.command();
    require(played.recorded() == recorded, "nothing happens in a battle that is closed");
    require(!replayWithoutScreen(readRecord(recorded)), "a set is played again as it was");
    return 0;
}
