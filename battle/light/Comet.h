#pragma once

#include <span>
#include <vector>

#include "battle/light/Glow.h"
#include "battle/light/LightPainter.h"

namespace skylob {

/// A light that flies, with a tail that fades along the way it has come.
class Comet {
  public:
    /// What it looks like; lengths are logical pixels.
    struct Look {
        double coreRadius = 0, glowRadius = 0, glowStrength = 0;
        double tailLength = 0, tailRadius = 0, tailStrength = 0;
        Colour head, tail;
    };

    explicit Comet(const Look& look) : m_look{look} {}

    /// Flies at the end of that path, which is the whole of it so far; with an empty one there is
    /// no comet.
    void follow(const FieldSight& sight, std::span<const FieldPoint> path, ChangedAreas& changed);

    void paint(LightCanvas& canvas) const;

  private:
    void layTail(const FieldSight& sight, std::span<const FieldPoint> path);

    Look m_look;
    double m_coreRadius = 0;
    std::vector<Glow> m_glows;  ///< the head's is the last one
    PixelRect m_area;
};

}  // namespace skylob
