#include "battle/light/RidgeLight.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "battle/light/Glow.h"
#include "battle/light/SkyLight.h"

namespace skylob {

namespace {

constexpr int kRimReach = 4;  // logical pixels
constexpr double kContrast = 3.2;
constexpr double kFiner = 0.02;  // between two strengths that are tried

double linear(double part) {
    const double share = part / 255;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

/// Relative luminance of moonlight of that strength upon a colour; of that alone at 0.
double luminance(Colour under, double strength) {
    const auto part = [strength](int light, int dark) {
        return linear(light * strength + dark * (1 - strength));
    };
    return 0.2126 * part(kMoonLight.red(), under.red()) +
           0.7152 * part(kMoonLight.green(), under.green()) +
           0.0722 * part(kMoonLight.blue(), under.blue());
}

/// Whether the light is told from the ground, high up and low down.
bool isSeen(double strength, Colour ground) {
    constexpr std::array kSkies{SkyLight::kZenith, SkyLight::kHorizon};
    return std::all_of(kSkies.begin(), kSkies.end(), [&](Colour sky) {
        const double a = luminance(sky, strength) + 0.05, b = luminance(ground, 0) + 0.05;
        return std::max(a, b) >= kContrast * std::min(a, b);
    });
}

/// The faintest light that is seen; none where the sky itself is.
double strengthOver(Colour ground) {
    double strength = 0;
    while (strength < 1 && !isSeen(strength, ground)) strength += kFiner;
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
        m_highest[static_cast<std::size_t>(px)] = highestNear(px) - kRimReach * m_scale;
}

int RidgeLight::highestNear(int px) const {
    const int reach = kRimReach * m_scale;
    int highest = m_skyline->top(px);
    for (int x = std::max(px - reach, 0); x < std::min(px + reach + 1, m_skyline->width()); ++x)
        highest = std::min(highest, m_skyline->top(x));
    return highest;
}

/// 1 on the pixel next to the ground, 0 where the light ends.
double RidgeLight::nearness(int px, int py) const {
    const int reach = kRimReach * m_scale;
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
