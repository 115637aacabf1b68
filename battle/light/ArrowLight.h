#pragma once

#include <array>

#include "battle/light/Glow.h"
#include "battle/light/LightPainter.h"

namespace skylob {

/// Tells of a shell above the picture: an arrow that glows at the upper edge, over
/// its column.
class ArrowLight : public LightPainter {
  public:
    void follow(const FieldSight& sight, ChangedAreas& changed) override;
    void paint(LightCanvas& canvas) const override;

  private:
    void pointTo(const FieldSight& sight, double x);

    std::array<LightPoint, 3> m_corners;
    Glow m_glow;
    PixelRect m_area;  ///< empty when there is no arrow
};

}  // namespace skylob
