#pragma once

#include "battle/light/Comet.h"

namespace skylob {

/// A meteor's light and its long tail.
class MeteorLight : public LightPainter {
  public:
    void follow(const FieldSight& sight, ChangedAreas& changed) override {
        m_comet.follow(sight, sight.scene.meteor, changed);
    }
    void paint(LightCanvas& canvas) const override { m_comet.paint(canvas); }

  private:
    Comet m_comet{{.coreRadius = 2,
                   .glowRadius = 8,
                   .glowStrength = 0.7,
                   .tailLength = 80,
                   .tailRadius = 3,
                   .tailStrength = 0.36,
                   .head = kFireLight,
                   .tail = Colour::fromRgb(0xFFB347)}};
};

}  // namespace skylob
