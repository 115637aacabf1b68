#pragma once

#include "battle/light/LightBurst.h"
#include "battle/light/LightPainter.h"

namespace skylob {

/// The flash and the smoke before the muzzle of a gun that has just fired.
class MuzzleFlash : public LightPainter {
  public:
    void follow(const FieldSight& sight, ChangedAreas& changed) override;
    void paint(LightCanvas& canvas) const override { m_burst.paint(canvas); }

  private:
    std::size_t m_step = 0;  ///< of the flight, that has been looked at last
    LightBurst m_burst;
};

}  // namespace skylob
