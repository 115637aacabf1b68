#include "battle/light/BlastBurst.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "battle/light/LightMath.h"

namespace skylob {

namespace {

using std::numbers::pi;

constexpr std::array kHeat{Colour::fromRgb(0x2E2A33), Colour::fromRgb(0x7A2A20),
                           Colour::fromRgb(0xE8502A), Colour::fromRgb(0xFFB347),
                           Colour::fromRgb(0xFFE9A8)};
constexpr Colour kFire = Colour::fromRgb(0xFFB347), kEmber = Colour::fromRgb(0xE8502A);
constexpr Colour kFlash = Colour::fromRgb(0xFFF3C4);
constexpr Colour kPaleDust = Colour::fromRgb(0xE6DCC3), kDust = Colour::fromRgb(0x9C8F78);
constexpr Colour kDullDust = Colour::fromRgb(0x6E5F50), kDarkDust = Colour::fromRgb(0x3B3330);

/// From 0, smoke, to 1, white-hot.
Colour heatColour(double heat) {
    const double place = std::clamp(heat, 0.0, 1.0) * (kHeat.size() - 1);
    const auto below = std::min(static_cast<std::size_t>(place), kHeat.size() - 2);
    return between(kHeat.at(below), kHeat.at(below + 1), place - static_cast<double>(below));
}

/// 0 before `begin`, 1 from `end` on.
double rise(double age, double begin, double end) {
    return std::clamp((age - begin) / (end - begin), 0.0, 1.0);
}

/// How far something has come that starts fast and is slowed down.
double slowed(double age) {
    return 1 - (1 - age) * (1 - age);
}

/// The place seen from the blast's middle, y upwards.
LightPoint placeOf(const BlastMoment& moment, double right, double up) {
    return {moment.at.x + right * moment.unit, moment.at.y - up * moment.unit};
}

/// How sparks or clods fly.
struct Spray {
    unsigned number, seed;
    double middle, spread;  ///< the direction, in radians from straight up to the right
    double nearest, farthest;
    double fall;  ///< how far they sink in the whole time
    double width;
};

LightPoint onSpray(const BlastMoment& moment, const Spray& spray, unsigned i, double age) {
    const double chance = scattered(spray.seed + 3 * i), far = scattered(spray.seed + 3 * i + 1);
    const double direction = spray.middle + (2 * chance - 1) * spray.spread;
    const double way = (spray.nearest + far * (spray.farthest - spray.nearest)) * slowed(age);
    return placeOf(moment, std::sin(direction) * way,
                   std::cos(direction) * way - spray.fall * age * age);
}

void addSpray(LightBurst& burst, const BlastMoment& moment, const Spray& spray, Colour young,
              Colour old) {
    if (moment.motion == Motion::Reduced) return;
    for (unsigned i = 0; i < spray.number; ++i) {
        const double life = 0.6 + 0.4 * scattered(spray.seed + 3 * i + 2);
        const double age = moment.age / life;
        if (age >= 1) continue;
        const LightPoint head = onSpray(moment, spray, i, age);
        const LightPoint tail = onSpray(moment, spray, i, std::max(age - 0.09, 0.0));
        burst.line(tail, head, spray.width * moment.unit * (1 - 0.5 * age),
                   between(young, old, age), 1 - age * age);
    }
}

/// What the blast lights around it.
void addGlow(LightBurst& burst, const BlastMoment& moment, double radius, Colour colour,
             double strength) {
    if (moment.motion == Motion::Full)
        burst.glow(moment.at, radius * moment.unit, colour, strength);
}

void addSmoke(LightBurst& burst, const BlastMoment& moment, double radius) {
    constexpr unsigned kPuffs = 9;
    for (unsigned i = 0; i < kPuffs; ++i) {
        const double right = (2 * (i + 0.5) / kPuffs - 1) * 0.8 * radius;
        const double up = radius * (0.15 + scattered(200 + i) + 0.5 * moment.age);
        burst.glow(placeOf(moment, right, up), 0.75 * radius * moment.unit,
                   Colour::fromRgb(0x4A4450),
                   0.55 * rise(moment.age, 0.25, 0.6) * (1 - rise(moment.age, 0.75, 1)));
    }
}

/// A hit is shown a little above the ground: about that far.
constexpr double kAboveGround = 6;

void addFire(LightBurst& burst, const BlastMoment& moment, double radius) {
    constexpr unsigned kPuffs = 20;
    for (unsigned i = 0; i < kPuffs; ++i) {
        // The outer ones first: they are cooler, and the hot middle lies over them.
        const double away = 1 - (i + 0.5) / kPuffs;
        const double direction = 2 * pi * scattered(100 + i);
        const double gone = rise(moment.age, 0.45 + 0.3 * (1 - away), 1);
        const double size = radius * (0.5 - 0.2 * away) * (1 - 0.5 * gone);
        const double right = std::sin(direction) * away * radius;
        const double up = std::cos(direction) * away * radius + 16 * moment.age * moment.age;
        const double heat = 1.15 - 0.55 * away - 0.75 * moment.age * (0.7 + 0.6 * away);
        // It stands on the ground: what is dug in there is not to be lit.
        burst.disc(placeOf(moment, right, std::max(up, size - kAboveGround)), size * moment.unit,
                   heatColour(heat), 0.92 * (1 - gone));
    }
}

}  // namespace

LightBurst fireball(const BlastMoment& moment) {
    const double left = 1 - moment.age, radius = 8 + 30 * slowed(moment.age);
    LightBurst burst;
    addGlow(burst, moment, 150, kEmber, 0.42 * left);
    addGlow(burst, moment, 85, kFire, 0.5 * left);
    addSmoke(burst, moment, radius);
    addFire(burst, moment, radius);
    if (moment.motion == Motion::Reduced) return burst;
    burst.glow(placeOf(moment, 0, 9), (18 + 26 * moment.age) * moment.unit, kFlash,
               0.9 * left * left);
    addSpray(burst, moment, {34, 300, 0, 1.75, 45, 150, 26, 1.9}, kFlash, kEmber);
    return burst;
}

LightBurst dustColumn(const BlastMoment& moment, int towards) {
    constexpr unsigned kPuffs = 40;
    LightBurst burst;
    addGlow(burst, moment, 46, kFire, 0.4 * rise(1 - moment.age, 0.3, 1));
    const double reach = slowed(moment.age);
    for (unsigned i = 0; i < kPuffs; ++i) {
        const double along = (i + 0.5) / kPuffs, apart = 2 * scattered(400 + i) - 1;
        const double direction = towards * (0.62 - 0.25 * along) + (0.5 - 0.25 * along) * apart;
        const double way = (8 + 66 * along) * reach;
        const double right = std::sin(direction) * way;
        const double up = std::cos(direction) * way - 16 * moment.age * moment.age * along;
        burst.disc(placeOf(moment, right, up),
                   (1.5 + 2.5 * along + 4 * reach * scattered(450 + i)) * moment.unit,
                   between(kDust, kPaleDust, scattered(500 + i)),
                   (0.75 - 0.3 * along) * (1 - rise(moment.age, 0.5, 1.15)));
    }
    addSpray(burst, moment, {18, 600, towards * 0.75, 0.6, 40, 105, 22, 1.6}, kPaleDust, kDust);
    return burst;
}

LightBurst dullBlast(const BlastMoment& moment) {
    constexpr unsigned kPuffs = 9;
    LightBurst burst;
    addGlow(burst, moment, 22, kEmber, 0.45 * (1 - moment.age));
    for (unsigned i = 0; i < kPuffs; ++i) {
        const double right = (2 * (i + 0.5) / kPuffs - 1) * (4 + 8 * slowed(moment.age));
        const double up = (3 + 9 * scattered(700 + i)) * slowed(moment.age) * (1 - 0.05 * right);
        burst.disc(placeOf(moment, right, up), (2 + 2.6 * slowed(moment.age)) * moment.unit,
                   between(kDarkDust, kDullDust, scattered(720 + i)),
                   0.7 * (1 - rise(moment.age, 0.5, 1.1)));
    }
    addSpray(burst, moment, {7, 800, 0, 1.1, 12, 26, 10, 1.3}, kEmber, kDarkDust);
    return burst;
}

}  // namespace skylob
