#pragma once

#include <vector>

#include "battle/light/LightPainter.h"

namespace skylob {

/// Shows the side that aims where its last shot came down: a small ring (side 1) or diamond (side
/// 2), on a stem that stands there.
class GhostMark : public LightPainter {
  public:
    void follow(const FieldSight& sight, ChangedAreas& changed) override;
    void paint(LightCanvas& canvas) const override;

  private:
    void stand(const FieldSight& sight, FieldPoint at);

    int m_side = 0;                     ///< that aims; 0: none
    std::vector<LightPoint> m_outline;  ///< closed: the last point is the first
    LightPoint m_foot;
    double m_lineWidth = 0;
    Colour m_colour;
    PixelRect m_area;  ///< empty when there is no mark
};

}  // namespace skylob
