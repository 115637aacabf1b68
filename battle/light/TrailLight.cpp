#include "battle/light/TrailLight.h"

#include "look/Theme.h"

namespace skylob {

namespace {

constexpr double kTrailRadius = 3;  // logical pixels
constexpr struct {
    std::size_t age;
    double strength;
} kFading[] = {{3, 0.85}, {8, 0.7}, {16, 0.6}, {30, 0.5}, {50, 0.42}};
constexpr std::size_t kOldest = 50;  // from then on it does not change
constexpr double kOldStrength = 0.35;

/// In a few steps only, so that few points change at a time.
double strengthAt(std::size_t age) {
    for (const auto& stage : kFading)
        if (age < stage.age) return stage.strength;
    return kOldStrength;
}

}  // namespace

void TrailLight::follow(const FieldSight& sight, ChangedAreas& changed) {
    const FieldScene::Flight& flight = sight.scene.flight;
    const bool isNew = flight.inTheAir && !m_inTheAir;
    const bool hasLanded = m_inTheAir && !flight.inTheAir;
    m_inTheAir = flight.inTheAir;
    if (isNew || flight.path.size() < m_followed) {
        forget(changed);
        m_followed = 0;
    }
    if (sight.remade) {  // what there was of a trail is gone
        forget(changed);
        m_followed = flight.path.size();
    }
    const std::size_t before = m_beads.size();
    for (; m_followed < flight.path.size(); ++m_followed) {
        if (!flight.leavesTrail) continue;
        const LightPoint at = sight.middleOf(flight.path[m_followed]);
        m_beads.push_back({{at, sight.scaled(kTrailRadius), sideColour(flight.side), 0}, {}});
    }
    if (m_beads.size() > before) age(before > kOldest ? before - kOldest - 1 : 0, changed);
    if (hasLanded && !m_beads.empty()) {  // where it comes down it leaves a black mark
        changed.add(m_beads.back().area);
        m_beads.pop_back();
    }
}

void TrailLight::forget(ChangedAreas& changed) {
    for (const Bead& bead : m_beads) changed.add(bead.area);
    m_beads.clear();
}

/// Gives the beads from that one on the strength that they have at their age.
void TrailLight::age(std::size_t from, ChangedAreas& changed) {
    for (std::size_t i = from; i < m_beads.size(); ++i) {
        auto& [light, area] = m_beads[i];
        const double strength = strengthAt(m_beads.size() - 1 - i);
        if (light.strength == strength) continue;
        light.strength = strength;
        area = light.area();
        changed.add(area);
    }
}

void TrailLight::paint(LightCanvas& canvas) const {
    for (const auto& [light, area] : m_beads)
        if (!common(area, canvas.area()).isEmpty()) light.paint(canvas);
}

}  // namespace skylob
