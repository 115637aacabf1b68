#include "battle/light/MuzzleFlash.h"

#include <cmath>

#include "battle/light/GunPose.h"
#include "battle/light/LightMath.h"

namespace skylob {

namespace {

constexpr std::size_t kFlashSteps = 6, kSmokeSteps = 22;
constexpr Colour kWhiteHot = Colour::fromRgb(0xFFF6D8), kFlame = Colour::fromRgb(0xFFC45A);
constexpr Colour kMuzzleGlow = Colour::fromRgb(0xFF9A3C), kSmoke = Colour::fromRgb(0x8C8A94);

/// Lengths are units of the gun's grid.
struct Muzzle {
    LightPoint at;
    double turn, unit;

    LightPoint before(double ahead, double aside) const {
        const double right = std::sin(turn), down = -std::cos(turn);
        return {at.x + (right * ahead - down * aside) * unit,
                at.y + (down * ahead + right * aside) * unit};
    }
};

void addFlash(LightBurst& burst, const Muzzle& muzzle, double left) {
    burst.glow(muzzle.before(4, 0), 44 * muzzle.unit, kMuzzleGlow, 0.5 * left);
    burst.glow(muzzle.before(5, 0), 18 * muzzle.unit, kFlame, 0.9 * left);
    for (const double aside : {-0.5, 0.5})
        burst.line(muzzle.at, muzzle.before(8 * left, 15 * aside * left), 2.6 * muzzle.unit * left,
                   kFlame, 0.95);
    burst.line(muzzle.at, muzzle.before(15 * left, 0), 4.6 * muzzle.unit * left, kFlame, 1);
    burst.line(muzzle.at, muzzle.before(10 * left, 0), 2.6 * muzzle.unit * left, kWhiteHot, 1);
    burst.disc(muzzle.before(1, 0), 3.4 * muzzle.unit * left, kWhiteHot, 1);
}

void addSmoke(LightBurst& burst, const Muzzle& muzzle, double age) {
    for (unsigned i = 0; i < 6; ++i) {
        const double ahead = (3 + 3.2 * i) * (0.4 + age);
        const double aside = (2 * scattered(30 + i) - 1) * (2 + 5 * age);
        LightPoint at = muzzle.before(ahead, aside);
        at.y -= 7 * age * age * muzzle.unit;
        burst.glow(at, (4 + 5 * age) * muzzle.unit, kSmoke, 0.42 * (1 - age));
    }
}

LightBurst burstOf(const FieldSight& sight, std::size_t step) {
    const int side = sight.scene.flight.side;
    const PixelRect area = sight.picture.pieceArea(side);
    GunPose pose = gunPose(side, sight);
    pose.recoil = 0;  // the flame stays where it has come out
    const Muzzle muzzle{muzzleOf(pose, area), pose.turn, gunScale(area.width, area.height).barrel};
    LightBurst burst;
    addSmoke(burst, muzzle, static_cast<double>(step) / kSmokeSteps);
    const bool flashes = sight.motion == Motion::Full && step < kFlashSteps;
    if (flashes) addFlash(burst, muzzle, 1 - static_cast<double>(step) / kFlashSteps);
    return burst;
}

}  // namespace

void MuzzleFlash::follow(const FieldSight& sight, ChangedAreas& changed) {
    const auto& flight = sight.scene.flight;
    const std::size_t step = flight.inTheAir ? flight.path.size() : 0;
    if (step == m_step && !sight.remade) return;
    m_step = step;
    changed.add(m_burst.area());
    // The first step has the number 1; smoke that has gone is not looked at again.
    const bool isSeen = step > 0 && step <= kSmokeSteps;
    m_burst = isSeen ? burstOf(sight, step - 1) : LightBurst{};
    changed.add(m_burst.area());
}

}  // namespace skylob
