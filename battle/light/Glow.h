#pragma once

#include "base/PerSide.h"
#include "battle/light/ChangedAreas.h"
#include "battle/light/LightCanvas.h"

namespace skylob {

/// The colours of what glows.
inline constexpr Colour kFireLight = Colour::fromRgb(0xFFE98A);
inline constexpr Colour kMoonLight = Colour::fromRgb(0xBFE9F2);

/// A side's own colour.
constexpr Colour sideLight(int side) {
    return Colour::fromRgb(side == kLeftSide ? 0xFF917C : 0xE39BFF);
}

/// One soft light, as LightCanvas::glow() paints it.
struct Glow {
    LightPoint at;
    double radius = 0;
    Colour colour;
    double strength = 0;

    bool operator==(const Glow&) const = default;

    /// The pixels that it may touch.
    PixelRect area() const {
        if (strength == 0) return {};
        const int left = static_cast<int>(std::floor(at.x - radius));
        const int top = static_cast<int>(std::floor(at.y - radius));
        return {left, top, static_cast<int>(std::ceil(at.x + radius)) - left,
                static_cast<int>(std::ceil(at.y + radius)) - top};
    }

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
