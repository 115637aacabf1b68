#include "players/Commentary.h"

namespace skylob {

namespace {

struct RemarkBlock {
    int first, last;  ///< numbers of texts
};

constexpr RemarkBlock kSelfHit{2000, 2023};
constexpr RemarkBlock kComputerWon{2100, 2134};
constexpr RemarkBlock kHumanWon{2200, 2219};
constexpr RemarkBlock kOneShot{2300, 2313};
constexpr RemarkBlock kTwoShots{2400, 2418};
constexpr RemarkBlock kThreeShots{2500, 2521};
constexpr RemarkBlock kMoreShots{2600, 2622};
constexpr RemarkBlock kSetOver{2700, 2711};

std::optional<RemarkBlock> blockFor(const basSkylob& shared) {
    if (shared.SetOver) return kSetOver;
    if (shared.SelfHit) return kSelfHit;
    if (shared.isComputer(2)) return shared.Winner == 2 ? kComputerWon : kHumanWon;
    const int shots = shared.RoundShots[shared.Winner];
    if (shots < 1) return std::nullopt;
    if (shots == 1) return kOneShot;
    if (shots == 2) return kTwoShots;
    return shots == 3 ? kThreeShots : kMoreShots;
}

}  // namespace

std::optional<std::string> drawRemark(const basSkylob& shared, const StringTable& strings,
                                      RandomSource& random) {
    const auto block = blockFor(shared);
    if (!block) return std::nullopt;
    return strings.text(RandomInt(random, block->first, block->last));
}

}  // namespace skylob
