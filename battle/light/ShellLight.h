#pragma once

#include "battle/light/Comet.h"

namespace skylob {

/// The shell in the air: a warm light with a short tail.
class ShellLight : public LightPainter {
  public:
    void follow(const FieldSight& sight, ChangedAreas& changed) override;
    void paint(LightCanvas& canvas) const override { m_comet.paint(canvas); }

  private:
    Comet m_comet{{.coreRadius = 2.6,
                   .glowRadius = 8,
                   .glowStrength = 0.9,
                   .tailLength = 30,
                   .tailRadius = 2.6,
                   .tailStrength = 0.36,
                   .head = kFireLight,
                   .tail = kFireLight}};
};

}  // namespace skylob
