#pragma once

#include <algorithm>

#include "tests/support/BattleRig.h"

namespace skylob::test {

inline std::vector<std::uint32_t> pixelsOf(const FieldPicture& shown) {
    return {shown.screenPixels(), shown.screenPixels() + shown.width() * shown.height()};
}
inline long yellowPixels(const FieldPicture& shown) {
    return std::count(shown.screenPixels(), shown.screenPixels() + shown.width() * shown.height(),
                      0xFFFFFF00u);
}

/// A sky over the field of the BattleRig, without a battle.
struct BareSky {
    BareSky() { generateBattlefield(state.field, random, 1, 5); }

    Log log;
    ScriptedRandom random{{}, 0.5};
    RecordingView view{log};
    RecordingPacer pacer{log};
    BattleState state;
    FieldPicture picture;
    FieldAnimation animation{picture, view, pacer};
    AmbientEffect effect{pacer};
    Sky sky{state, animation, random, effect};
};

/// A battle that waits for side 1 with meteors and lightning on and without sound, on the field of
/// the BattleRig; a pixel is a unit. Twelve seconds have gone by.
struct SkyRig : StartedRig {
    SkyRig() {
        picture().resize(1000, 1000, 1);
        battle.redrawField();
        passTime();
    }

    void passTime() {
        clock.time += std::chrono::seconds{12};
        log.clear();
    }
    FieldPicture& picture() { return battle.picture(); }

    std::vector<std::uint32_t> pixels() { return pixelsOf(picture()); }

    /// Runs `action` once, at the yield of that number, 1 or more, from now on.
    void atYield(int number, std::function<void()> action) {
        pacer.onYield = [this, number, action = std::move(action)] {
            if (number == 1)
                action();
            else
                atYield(number - 1, action);
        };
    }

    /// What happened, without the yields.
    Log events() const {
        Log events = log;
        std::erase(events, "yield");
        return events;
    }
    std::ptrdiff_t yields() const { return std::count(log.begin(), log.end(), "yield"); }
};

}  // namespace skylob::test
