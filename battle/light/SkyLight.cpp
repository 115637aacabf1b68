#include "battle/light/SkyLight.h"

#include "battle/light/LightMath.h"

namespace skylob {

void SkyLight::follow(const FieldSight& sight, ChangedAreas&) {
    if (!sight.remade) return;
    m_skyline = &sight.skyline;
    const int height = sight.picture.height();
    m_rows.clear();
    for (int y = 0; y < height; ++y)
        m_rows.push_back(between(kZenith, kHorizon, static_cast<double>(y) / height));
}

void SkyLight::paint(LightCanvas& canvas) const {
    const PixelRect& area = canvas.area();
    for (int y = area.y; y < area.bottom(); ++y)
        canvas.cover(y, m_rows[static_cast<std::size_t>(y)],
                     [this, y](int x) { return y < m_skyline->top(x); });
}

}  // namespace skylob
