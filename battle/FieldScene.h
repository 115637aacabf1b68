#pragma once

#include <optional>
#include <vector>

#include "base/PerSide.h"
#include "battle/FieldPoint.h"
#include "battle/Landing.h"

namespace skylob {

/// What is happening on the field at this moment, for the eyes: light is painted from it over the
/// rules' picture. The rules write it as they go, and none of them reads it.
struct FieldScene {
    /// The shell in the air, or the last one of the round.
    struct Flight {
        int side = 0;  ///< who fired it; 0 before the first one of the round
        bool inTheAir = false;
        bool leavesTrail = false;      ///< its path stays on the picture, in its side's colour
        std::vector<FieldPoint> path;  ///< of each half step, the newest last
    };

    /// A blast that grows, in a pen's widths.
    struct Blast {
        FieldPoint at;  ///< its centre
        int width = 0, fullWidth = 0;
        Landing landing = Landing::Miss;
    };

    Flight flight;
    std::optional<Blast> blast;
    std::vector<FieldPoint> meteor;              ///< its path so far; empty when none is in the sky
    std::vector<std::vector<FieldPoint>> bolts;  ///< as far as they have struck down
    PerSide<bool> wrecked;                       ///< hit in this round

    /// On the ground, where each side's last shot of the round came down; nothing where it left the
    /// field.
    PerSide<std::optional<FieldPoint>> lastLanding;

    /// A new round: nothing has happened on this field yet.
    void clear() { *this = {}; }
};

}  // namespace skylob
