#include "battle/light/StarLight.h"

namespace skylob {

namespace {

constexpr int kHeld = 8;  // steps that a strength is held: what changes costs time
constexpr double kStrengths[] = {0.2, 0.45, 0.75, 0.9, 0.75, 0.45, 0.2};
constexpr int kTwinkle = kHeld * static_cast<int>(std::size(kStrengths));
constexpr double kStarRadius = 3;  // logical pixels
constexpr Colour kStarLight = Colour::fromRgb(0xE8F2FF);

Glow twinkle(const FieldSight& sight, int number) {
    const auto& stars = sight.state.field.stars;
    if (!sight.moving || stars.empty()) return {};
    const int time = sight.step + number * 11;  // they do not change together
    const auto turn = static_cast<unsigned>(time / kTwinkle * 31 + number);
    const double chosen = scattered(turn) * static_cast<double>(stars.size());
    const auto& star = stars[static_cast<std::size_t>(chosen)];
    if (sight.picture.pixel(star.x, star.y) != star.colour) return {};  // behind the moon
    return {sight.middleOf({star.x, star.y}), sight.scaled(kStarRadius), kStarLight,
            kStrengths[time % kTwinkle / kHeld]};
}

}  // namespace

void StarLight::follow(const FieldSight& sight, ChangedAreas& changed) {
    int number = 0;
    for (Glow& glow : m_twinkles) glow.become(twinkle(sight, number++), changed);
}

void StarLight::paint(LightCanvas& canvas) const {
    for (const Glow& glow : m_twinkles) glow.paint(canvas);
}

}  // namespace skylob
