#include "battle/RidgeLight.h"

#include <algorithm>
#include <cmath>

#include "battle/Glow.h"

namespace skylob {

namespace {

constexpr int kReach = 4;                          // logical pixels
constexpr double kFaintest = 0.12, kFiner = 0.02;  // strengths
constexpr double kContrast = 3.1;

double linear(double part) {
    const double share = part / 255;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

/// Relative luminance of the colour at a part of its strength, on black.
double luminance(Colour colour, double strength) {
    return 0.2126 * linear(colour.red() * strength) + 0.7152 * linear(colour.green() * strength) +
           0.0722 * linear(colour.blue() * strength);
}

double contrast(double a, double b) {
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// The faintest light that is told from the ground.
double strengthOver(Colour ground) {
    double strength = kFaintest;
    while (strength < 1 &&
           contrast(luminance(kMoonLight, strength), luminance(ground, 1)) < kContrast)
        strength += kFiner;
    return std::min(strength, 1.0);
}

}  // namespace

void RidgeLight::follow(const FieldSight& sight, ChangedAreas&) {
    if (!sight.remade) return;
    m_skyline = &sight.skyline;
    m_scale = sight.picture.dotScale();
    m_strength = strengthOver(sight.state.field.groundColour);
    m_highest.resize(static_cast<std::size_t>(m_skyline->width()));
    for (int px = 0; px < m_skyline->width(); ++px)
        m_highest[static_cast<std::size_t>(px)] = highestNear(px) - kReach * m_scale;
}

int RidgeLight::highestNear(int px) const {
    const int reach = kReach * m_scale;
    int highest = m_skyline->top(px);
    for (int x = std::max(px - reach, 0); x < std::min(px + reach + 1, m_skyline->width()); ++x)
        highest = std::min(highest, m_skyline->top(x));
    return highest;
}

/// 1 on the pixel next to the ground, 0 where the light ends.
double RidgeLight::nearness(int px, int py) const {
    const int reach = kReach * m_scale;
    int nearest = reach * reach;  // squared
    for (int x = std::max(px - reach, 0); x < std::min(px + reach + 1, m_skyline->width()); ++x) {
        const int dx = x - px, dy = std::max(m_skyline->top(x) - py, 0);
        nearest = std::min(nearest, dx * dx + dy * dy);
    }
    const double away = std::max(std::sqrt(nearest) - m_scale, 0.0);
    const double share = 1 - away / (reach - m_scale);
    return share * share;
}

void RidgeLight::paint(LightCanvas& canvas) const {
    const PixelRect& area = canvas.area();
    for (int x = area.x; x < area.right(); ++x) {
        const int first = std::max(m_highest[static_cast<std::size_t>(x)], area.y);
        for (int y = first; y < std::min(m_skyline->top(x), area.bottom()); ++y) {
            const double share = nearness(x, y);
            if (share > 0) canvas.pixel(x, y, kMoonLight, m_strength * share);
        }
    }
}

}  // namespace skylob
