// Plays a whole set between two scripted sides and prints each shot and its landing: the rules
// of battle without a screen, as another program may use them. An argument is the seed.

#include <array>
#include <cstdlib>
#include <iostream>

#include "battle/HeadlessBattle.h"

int main(int argc, char** argv) {
    const std::uint64_t seed = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 2026;
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
