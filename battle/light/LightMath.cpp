#include "battle/light/LightMath.h"

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

LightPoint between(LightPoint first, LightPoint other, double part) {
    return {first.x + (other.x - first.x) * part, first.y + (other.y - first.y) * part};
}

}  // namespace skylob
