#pragma once

#include "battle/light/LightPainter.h"

namespace skylob {

/// The halo of the moon. A moon that is partly in the shadow has it on its lit side.
class MoonLight : public LightPainter {
  public:
    void follow(const FieldSight& sight, ChangedAreas& changed) override;
    void paint(LightCanvas& canvas) const override;

  private:
    const Skyline* m_skyline = nullptr;
    LightPoint m_at;
    double m_moonRadius = 0, m_far = 0;
    double m_litSide = 0;  ///< -1: the left one, 1: the right one
    double m_strength = 0;
};

}  // namespace skylob
