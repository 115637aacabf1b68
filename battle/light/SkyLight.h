#pragma once

#include <vector>

#include "battle/light/LightPainter.h"

namespace skylob {

/// The night's own light: the sky is not quite black, least of all near the horizon.
class SkyLight : public LightPainter {
  public:
    void follow(const FieldSight& sight, ChangedAreas& changed) override;
    void paint(LightCanvas& canvas) const override;

    /// At the top of the picture, and at its foot, where it is brightest.
    static constexpr Colour kZenith = Colour::fromRgb(0x04060D);
    static constexpr Colour kHorizon = Colour::fromRgb(0x0E1830);

  private:
    const Skyline* m_skyline = nullptr;
    std::vector<Colour> m_rows;
};

}  // namespace skylob
