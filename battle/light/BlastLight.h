#pragma once

#include "battle/light/LightBurst.h"
#include "battle/light/LightPainter.h"

namespace skylob {

/// Fire, sparks and smoke of a blast. They grow with it and are gone with it.
class BlastLight : public LightPainter {
  public:
    void follow(const FieldSight& sight, ChangedAreas& changed) override;
    void paint(LightCanvas& canvas) const override { m_burst.paint(canvas); }

  private:
    int m_width = 0;  ///< of the blast that is seen; 0 when there is none
    LightBurst m_burst;
};

}  // namespace skylob
