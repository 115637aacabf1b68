#pragma once

#include <vector>

#include "battle/light/LightCanvas.h"

namespace skylob {

/// Several lights, kept to be painted together, the first one lowest. See LightCanvas for what they
/// are; one without strength is left out.
class LightBurst {
  public:
    void glow(LightPoint at, double radius, Colour colour, double strength);
    void disc(LightPoint at, double radius, Colour colour, double strength);
    void line(LightPoint from, LightPoint to, double width, Colour colour, double strength);

    /// Holds all of them.
    const PixelRect& area() const { return m_area; }

    void paint(LightCanvas& canvas) const;

  private:
    enum class Shape { Glow, Disc, Line };
    struct Light {
        Shape shape;
        LightPoint from, to;
        double size;
        Colour colour;
        double strength;
    };
    void add(const Light& light, double reach);

    std::vector<Light> m_lights;
    PixelRect m_area;
};

}  // namespace skylob
