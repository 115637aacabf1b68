// Plays a whole set between two scripted sides and prints each shot and its landing: the rules
// of battle without a screen, as another program may use them. An argument is the seed.
//   headless_set [SEED]
// plays recorded sets again and names the first line that differs (docs/recording.md):
//   headless_set --replay FILE...

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string_view>

#include "battle/HeadlessBattle.h"
#include "battle/record/BattleReplay.h"

namespace {

constexpr int kDiffers = 1, kUnusable = 2;

void playScriptedSet(std::uint64_t seed) {
    skylob::basSkylob players;
    players.PlayerName = {"Ada", "Grace"};
    players.NumRounds = 5;
    skylob::HeadlessBattle set{players, seed};

    // Each side walks its shells over the mountain, faster with every shot.
    while (!set.isOver()) {
        const int side = set.shooter();
        const int fired = set.battle().shared().RoundShots[side];
        set.shoot(280 + 11 * (fired % 16), 74);
    }

    const std::array landings{"out of bounds", "self hit", "direct hit", "near miss", "miss"};
    for (const auto& shot : set.battle().shots()) {
        std::cout << players.PlayerName[shot.side] << " fires at speed " << shot.speed << ", angle "
                  << shot.angle << ": " << shot.landedAt.x << ", " << shot.landedAt.y << ", "
                  << landings.at(static_cast<std::size_t>(shot.landing)) << '\n';
    }
    const auto& won = set.battle().shared().RoundsWon;
    std::cout << players.PlayerName[1] << " won " << won[1] << " rounds, " << players.PlayerName[2]
              << ' ' << won[2] << '\n';
}

/// Returns the exit status.
int replay(const char* file) {
    try {
        const auto difference = skylob::replayWithoutScreen(skylob::readRecordFile(file));
        if (!difference) return EXIT_SUCCESS;
        std::cerr << file << ':' << difference->line << ": recorded '" << difference->recorded
                  << "', played '" << difference->played << "'\n";
        return kDiffers;
    } catch (const skylob::RecordError& error) {
        std::cerr << "headless_set: cannot replay '" << file << "': " << error.what() << '\n';
        return kUnusable;
    }
}

}  // namespace

int main(int argc, char** argv) {
    const std::span arguments{argv + 1, argv + argc};
    if (arguments.empty() || std::string_view{arguments[0]} != "--replay") {
        playScriptedSet(arguments.empty() ? 2026 : std::strtoull(arguments[0], nullptr, 10));
        return EXIT_SUCCESS;
    }
    int status = EXIT_SUCCESS;
    for (const char* file : arguments.subspan(1)) status = std::max(status, replay(file));
    return status;
}
