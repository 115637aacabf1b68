#pragma once

#include "battle/light/GunDrawings.h"

namespace skylob {

/// The two guns: aimed, thrown back, wrecked, and a sign over that whose turn it is.
class GunLight : public LightPainter {
  public:
    /// `drawings` must outlive this.
    explicit GunLight(GunDrawings& drawings) : m_drawings{drawings} {}

    void follow(const FieldSight& sight, ChangedAreas& changed) override;
    void paint(LightCanvas& canvas) const override;

    /// Whether a gun, or the sign over it, is shown in that row or device pixel.
    bool isIn(int py) const;
    bool covers(int px, int py) const;

  private:
    struct Gun {
        GunPose pose;
        PixelRect area;  ///< the piece's; empty while it is hidden
        std::shared_ptr<const GunDrawing> drawing;

        LightPoint sign() const;
        double signGlow() const;
        PixelRect image() const;
        PixelRect seen() const;
    };

    GunDrawings& m_drawings;
    PerSide<Gun> m_guns;
};

}  // namespace skylob
