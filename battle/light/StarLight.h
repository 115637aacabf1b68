#pragma once

#include <array>

#include "battle/light/Glow.h"
#include "battle/light/LightPainter.h"

namespace skylob {

/// A few stars that twinkle while something moves, always others.
class StarLight : public LightPainter {
  public:
    void follow(const FieldSight& sight, ChangedAreas& changed) override;
    void paint(LightCanvas& canvas) const override;

  private:
    std::array<Glow, 6> m_twinkles;
};

}  // namespace skylob
