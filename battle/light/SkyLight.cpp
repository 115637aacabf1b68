#include "battle/light/SkyLight.h"

namespace skylob {

namespace {

Colour mixed(Colour from, Colour to, int part, int whole) {
    const auto mix = [part, whole](int a, int b) {
        return static_cast<std::uint32_t>(a + (b - a) * part / whole);
    };
    return Colour::fromRgb(mix(from.red(), to.red()) << 16 | mix(from.green(), to.green()) << 8 |
                           mix(from.blue(), to.blue()));
}
}  // namespace

void SkyLight::follow(const FieldSight& sight, ChangedAreas&) {
    if (!sight.remade) return;
    m_skyline = &sight.skyline;
    const int height = sight.picture.height();
    m_rows.clear();
    for (int y = 0; y < height; ++y) m_rows.push_back(mixed(kZenith, kHorizon, y, height));
}

void SkyLight::paint(LightCanvas& canvas) const {
    const PixelRect& area = canvas.area();
    for (int y = area.y; y < area.bottom(); ++y) {
        const Colour colour = m_rows[static_cast<std::size_t>(y)];
        for (int x = area.x; x < area.right(); ++x)
            if (y < m_skyline->top(x)) canvas.pixel(x, y, colour);
    }
}

}  // namespace skylob
