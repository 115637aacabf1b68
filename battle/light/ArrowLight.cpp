#include "battle/light/ArrowLight.h"

namespace skylob {

namespace {
constexpr double kTop = 3, kHeight = 8, kHalfWidth = 5, kArrowGlow = 18;  // logical pixels
}

void ArrowLight::follow(const FieldSight& sight, ChangedAreas& changed) {
    changed.add(m_area);
    m_area = {};
    const FieldScene::Flight& flight = sight.scene.flight;
    if (!flight.inTheAir || flight.path.empty()) return;
    const LightPoint shell = sight.middleOf(flight.path.back());
    if (shell.y >= 0) return;
    pointTo(sight, shell.x);
    changed.add(m_area);
}

void ArrowLight::pointTo(const FieldSight& sight, double x) {
    const double top = sight.scaled(kTop), bottom = top + sight.scaled(kHeight);
    const double left = x - sight.scaled(kHalfWidth), right = x + sight.scaled(kHalfWidth);
    m_corners = {LightPoint{x, top}, LightPoint{right, bottom}, LightPoint{left, bottom}};
    m_glow = {{x, bottom}, sight.scaled(kArrowGlow), kFireLight, 0.5};
    m_area = m_glow.area();  // which holds the arrow
}

void ArrowLight::paint(LightCanvas& canvas) const {
    if (common(m_area, canvas.area()).isEmpty()) return;
    m_glow.paint(canvas);
    canvas.polygon(m_corners, kFireLight);
}

}  // namespace skylob
