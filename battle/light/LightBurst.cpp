#include "battle/light/LightBurst.h"

#include <algorithm>
#include <cmath>

namespace skylob {

namespace {

/// What is farther away than that is not on any picture, and has no place in whole numbers.
constexpr double kFarthest = 1e6;

int pixelAt(double place) {
    return static_cast<int>(std::floor(std::clamp(place, -kFarthest, kFarthest)));
}

}  // namespace

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

PixelRect areaAround(LightPoint at, double radius) {
    if (radius <= 0) return {};
    const int left = pixelAt(at.x - radius), top = pixelAt(at.y - radius);
    return {left, top, pixelAt(at.x + radius) + 1 - left, pixelAt(at.y + radius) + 1 - top};
}

double scattered(unsigned number) {
    // A multiplicative hash of 32 bits, whose neighbours have nothing in common.
    std::uint32_t bits = number * 0x9E3779B9u + 0x7F4A7C15u;
    bits = (bits ^ bits >> 16) * 0x85EBCA6Bu;
    bits = (bits ^ bits >> 13) * 0xC2B2AE35u;
    return ((bits ^ bits >> 16) >> 8) / 16777216.0;
}

Colour between(Colour first, Colour other, double part) {
    const auto mixed = [part](int a, int b) {
        return static_cast<std::uint32_t>(std::lround(a + (b - a) * std::clamp(part, 0.0, 1.0)));
    };
    return Colour::fromRgb(mixed(first.red(), other.red()) << 16 |
                           mixed(first.green(), other.green()) << 8 |
                           mixed(first.blue(), other.blue()));
}

}  // namespace skylob
