#pragma once

#include <vector>

#include "battle/light/Glow.h"
#include "battle/light/LightPainter.h"

namespace skylob {

/// Light around the points of the last shell's trail, brightest where it is newest. It is there
/// until the next shell is fired or the trail is swept off the picture.
class TrailLight : public LightPainter {
  public:
    void follow(const FieldSight& sight, ChangedAreas& changed) override;
    void paint(LightCanvas& canvas) const override;

  private:
    void forget(ChangedAreas& changed);
    void age(std::size_t from, ChangedAreas& changed);

    struct Bead {
        Glow light;
        PixelRect area;
    };
    std::vector<Bead> m_beads;
    std::size_t m_followed = 0;  ///< how many of the path's points have been seen
    bool m_inTheAir = false;
};

}  // namespace skylob
