#pragma once

#include "battle/light/LightPainter.h"

namespace skylob {

/// Moonlight along the ground's edge, in the sky: it parts the dark grounds from the sky.
/// Bright grounds have none, as it would make them harder to see.
class RidgeLight : public LightPainter {
  public:
    void follow(const FieldSight& sight, ChangedAreas& changed) override;
    void paint(LightCanvas& canvas) const override;

  private:
    double nearness(int px, int py) const;
    int highestNear(int px) const;

    const Skyline* m_skyline = nullptr;
    int m_scale = 1;
    double m_strength = 0;
    std::vector<int> m_highest;  ///< by column: the first row that the light reaches
};

}  // namespace skylob
