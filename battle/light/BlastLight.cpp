#include "battle/light/BlastLight.h"

#include <algorithm>

#include "battle/light/BlastBurst.h"

namespace skylob {

namespace {

/// A shell comes down somewhat below the ground, where no light would be seen.
FieldPoint aboveGround(FieldPoint at, const Battlefield& field) {
    return {at.x, std::max(at.y, field.heightAt(std::clamp(at.x, 1, kColumns)))};
}

/// A near miss is shown on its target. The shell came down beside it and throws its dust across.
LightBurst nearMiss(BlastMoment moment, const FieldSight& sight) {
    const int target = sight.scene.blast->at.x;
    const auto& path = sight.scene.flight.path;
    const int landing = path.empty() ? target : path.back().x;
    moment.at.x = sight.middleOf({landing, 1}).x;
    return dustColumn(moment, landing <= target ? 1 : -1);
}

LightBurst burstOf(const FieldScene::Blast& blast, const FieldSight& sight) {
    // A blast of width 1 is not shown any more than one that is over.
    const double age = (blast.width - 1.0) / blast.fullWidth;
    const BlastMoment moment{sight.middleOf(aboveGround(blast.at, sight.state.field)),
                             static_cast<double>(sight.picture.dotScale()), age, sight.motion};
    if (isHit(blast.landing)) return fireball(moment);
    return blast.landing == Landing::NearMiss ? nearMiss(moment, sight) : dullBlast(moment);
}

}  // namespace

void BlastLight::follow(const FieldSight& sight, ChangedAreas& changed) {
    const auto& blast = sight.scene.blast;
    const int width = blast ? blast->width : 0;
    // Each width is shown twice, in two colours of the rules.
    if (width == m_width && !sight.remade) return;
    m_width = width;
    changed.add(m_burst.area());
    m_burst = blast ? burstOf(*blast, sight) : LightBurst{};
    changed.add(m_burst.area());
}

}  // namespace skylob
