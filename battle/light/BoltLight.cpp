#include "battle/light/BoltLight.h"

#include <algorithm>
#include <cmath>

#include "battle/light/Glow.h"

namespace skylob {

namespace {

constexpr double kBoltRadius = 6;  // logical pixels
constexpr double kStrength = 0.2;  // each point's; they lie close together
constexpr std::size_t kEvery = 2;  // point has a light
constexpr Colour kSkyLight = kMoonLight;
constexpr double kSkyStrength = 0.14, kEverywhere = 0.05;
constexpr double kBoltClearOfGround = 16;  // logical pixels
constexpr double kSkyWidth = 0.2;          // of the picture's
constexpr double kAtTheFoot = 0.3;         // of the light at the top

}  // namespace

void BoltLight::follow(const FieldSight& sight, ChangedAreas& changed) {
    const auto& bolts = sight.scene.bolts;
    const std::size_t before = m_bolts.size();
    if (sight.remade || bolts.size() < before) m_bolts.clear();
    m_skyline = &sight.skyline;
    m_height = sight.picture.height();
    m_radius = sight.scaled(kBoltRadius);
    m_far = sight.scaled(kBoltClearOfGround);
    m_bolts.resize(bolts.size());
    for (std::size_t i = 0; i < bolts.size(); ++i) {
        for (std::size_t k = m_bolts[i].size(); k < bolts[i].size(); ++k) {
            m_bolts[i].push_back(sight.middleOf(bolts[i][k]));
            if (k % kEvery == 0)
                changed.add(Glow{m_bolts[i].back(), m_radius, kFireLight, kStrength}.area());
        }
    }
    m_lightsSky = sight.motion == Motion::Full;
    if (sight.remade || m_bolts.size() != before) lightSky(changed);
}

/// The sky is as bright as the nearest bolt makes it.
void BoltLight::lightSky(ChangedAreas& changed) {
    m_sky.assign(static_cast<std::size_t>(m_skyline->width()), 0);
    for (const Path& bolt : m_bolts) {
        if (bolt.empty()) continue;
        for (int x = 0; x < m_skyline->width(); ++x) {
            const double away = (x - bolt.front().x) / (kSkyWidth * m_skyline->width());
            double& strength = m_sky[static_cast<std::size_t>(x)];
            strength = std::max(strength, kEverywhere + kSkyStrength * std::exp(-away * away));
        }
    }
    changed.addWhole();
}

void BoltLight::paint(LightCanvas& canvas) const {
    if (m_bolts.empty()) return;
    if (m_lightsSky) paintSky(canvas);
    for (const Path& bolt : m_bolts) paintBolt(bolt, canvas);
}

void BoltLight::paintSky(LightCanvas& canvas) const {
    const PixelRect& area = canvas.area();
    for (int y = area.y; y < area.bottom(); ++y) {
        const double share = 1 - (1 - kAtTheFoot) * y / m_height;
        for (int x = area.x; x < area.right(); ++x) {
            const double clearance = m_skyline->clearance(x, y, m_far);
            if (clearance > 0)
                canvas.pixel(x, y, kSkyLight,
                             clearance * share * m_sky[static_cast<std::size_t>(x)]);
        }
    }
}

void BoltLight::paintBolt(const Path& bolt, LightCanvas& canvas) const {
    const auto isAbove = [](const LightPoint& point, double y) { return point.y < y; };
    const auto first =
        std::lower_bound(bolt.begin(), bolt.end(), canvas.area().y - m_radius, isAbove);
    const auto last =
        std::lower_bound(first, bolt.end(), canvas.area().bottom() + m_radius, isAbove);
    for (auto at = first; at != last; ++at)
        if (static_cast<std::size_t>(at - bolt.begin()) % kEvery == 0)
            canvas.glow(*at, m_radius, kFireLight, kStrength);
}

}  // namespace skylob
