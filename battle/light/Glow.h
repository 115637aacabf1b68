#pragma once

#include "battle/light/ChangedAreas.h"
#include "battle/light/LightMath.h"

namespace skylob {

/// The colours of what glows.
inline constexpr Colour kFireLight = Colour::fromRgb(0xFFE98A);
inline constexpr Colour kMoonLight = Colour::fromRgb(0xBFE9F2);

/// One soft light, as LightCanvas::glow() paints it.
struct Glow {
    LightPoint at;
    double radius = 0;
    Colour colour;
    double strength = 0;

    bool operator==(const Glow&) const = default;

    /// The pixels that it may touch.
    PixelRect area() const { return areaAround(at, strength == 0 ? 0 : radius); }

    void paint(LightCanvas& canvas) const { canvas.glow(at, radius, colour, strength); }

    /// Makes it another one.
    void become(const Glow& other, ChangedAreas& changed) {
        if (other == *this) return;
        changed.add(area());
        *this = other;
        changed.add(area());
    }
};

}  // namespace skylob
