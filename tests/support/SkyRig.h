#pragma once

#include <algorithm>
#include <ostream>

#include "tests/support/BattleRig.h"

namespace skylob::test {

inline std::vector<std::uint32_t> pixelsOf(const FieldPicture& shown) {
    return {shown.screenPixels(), shown.screenPixels() + shown.width() * shown.height()};
}
/// A plain loop: the tests look at whole pictures hundreds of times.
inline long yellowPixels(const FieldPicture& shown) {
    const std::uint32_t* const pixels = shown.screenPixels();
    long yellow = 0;
    for (int i = 0; i < shown.width() * shown.height(); ++i) yellow += pixels[i] == 0xFFFFFF00u;
    return yellow;
}

/// A picture with a pixel for each unit, and everything that moves on it recorded.
struct AnimatedField {
    AnimatedField() { picture.resize(1000, 1000, 1); }

    Log log;
    FieldPicture picture;
    RecordingView view{log};
    RecordingPacer pacer{log};
    FieldAnimation animation{picture, view, pacer};
};

/// A sky over the field of the BattleRig, without a battle.
struct BareSky : AnimatedField {
    BareSky() { generateBattlefield(state.field, random, 1, 5); }

    ScriptedRandom random{{}, 0.5};
    BattleState state;
    AmbientEffect effect{pacer};
    Sky sky{state, animation, random, effect};
};

struct Effect {
    const char* name;
    void (Battle::*tick)();

    friend std::ostream& operator<<(std::ostream& out, const Effect& effect) {
        return out << effect.name;
    }
};
constexpr Effect kMeteor{"meteor", &Battle::timerMeteors_Timer};
constexpr Effect kStorm{"storm", &Battle::timerLightning_Timer};

/// A battle that waits for side 1 with meteors and lightning on and without sound, on the field of
/// the BattleRig; a pixel is a unit. Twelve seconds have gone by.
struct SkyRig : StartedRig {
    SkyRig() {
        picture().resize(1000, 1000, 1);
        battle.replotField();
        passTime();
    }

    void passTime() {
        clock.time += std::chrono::seconds{12};
        log.clear();
    }
    /// Ticks that timer. Chance is in favour of the effect, the rest as the rig has it.
    void begin(const Effect& effect, std::deque<double> chance = {0}) {
        random.script(std::move(chance));
        (battle.*effect.tick)();
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
    std::ptrdiff_t yields() const { return std::ranges::count(log, "yield"); }
};

}  // namespace skylob::test
