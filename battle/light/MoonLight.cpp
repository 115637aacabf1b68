#include "battle/light/MoonLight.h"

#include <algorithm>
#include <cmath>

#include "battle/light/Glow.h"

namespace skylob {

namespace {

constexpr double kHaloReach = 3.2;  // of the moon's radii
constexpr double kStrongest = 0.3, kFaintest = 0.12;
constexpr double kMoonClearOfGround = 12;  // logical pixels
constexpr double kDarkSide = 0.25;         // of the light is left there

}  // namespace

void MoonLight::follow(const FieldSight& sight, ChangedAreas&) {
    if (!sight.remade) return;
    const Battlefield& field = sight.state.field;
    const int shadow = moonShadow(field);
    m_skyline = &sight.skyline;
    m_far = sight.scaled(kMoonClearOfGround);
    m_strength = 0;
    if (!field.hasMoon() || shadow == 0) return;
    m_at = sight.middleOf({field.MoonX, field.moonY});
    m_moonRadius = kMoonRadius * (sight.picture.width() - 1) / 999.0;
    m_litSide = shadow > 0 ? -1 : 1;
    const double lit = std::min(std::abs(shadow) / (1.0 * kMoonRadius), 1.0);
    m_strength = kFaintest + (kStrongest - kFaintest) * lit;
}

void MoonLight::paint(LightCanvas& canvas) const {
    if (m_strength == 0) return;
    const double reach = kHaloReach * m_moonRadius;
    canvas.shade({m_at.x - reach, m_at.y - reach}, {m_at.x + reach, m_at.y + reach}, kMoonLight,
                 m_strength, [this, reach](double x, double y) {
                     const double dx = (x - m_at.x) / reach, dy = (y - m_at.y) / reach;
                     const double share = 1 - std::sqrt(dx * dx + dy * dy);
                     if (share <= 0) return 0.0;
                     const double side = std::clamp(dx * m_litSide + 0.5, 0.0, 1.0);
                     return share * (kDarkSide + (1 - kDarkSide) * side) *
                            m_skyline->clearance(static_cast<int>(x), static_cast<int>(y), m_far);
                 });
}

}  // namespace skylob
