#include "battle/light/LightBurst.h"

#include <algorithm>

#include "battle/light/LightMath.h"

namespace skylob {

void LightBurst::glow(LightPoint at, double radius, Colour colour, double strength) {
    add({Shape::Glow, at, at, radius, colour, strength}, radius);
}

void LightBurst::disc(LightPoint at, double radius, Colour colour, double strength) {
    add({Shape::Disc, at, at, radius, colour, strength}, radius + 1);
}

void LightBurst::line(LightPoint from, LightPoint to, double width, Colour colour,
                      double strength) {
    add({Shape::Line, from, to, width, colour, strength}, width / 2 + 1);
}

void LightBurst::add(const Light& light, double reach) {
    if (light.strength <= 0 || light.size <= 0) return;
    m_lights.push_back(light);
    m_lights.back().strength = std::min(light.strength, 1.0);
    m_area = united(m_area, areaAround(light.from, reach));
    m_area = united(m_area, areaAround(light.to, reach));
}

void LightBurst::paint(LightCanvas& canvas) const {
    if (common(m_area, canvas.area()).isEmpty()) return;
    for (const auto& [shape, from, to, size, colour, strength] : m_lights) {
        switch (shape) {
            case Shape::Glow:
                canvas.glow(from, size, colour, strength);
                break;
            case Shape::Disc:
                canvas.disc(from, size, colour, strength);
                break;
            case Shape::Line:
                canvas.line(from, to, size, colour, strength);
                break;
        }
    }
}

}  // namespace skylob
