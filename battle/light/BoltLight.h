#pragma once

#include <vector>

#include "battle/light/LightPainter.h"

namespace skylob {

/// Bolts glow, and light the sky above the ridge as long as they are seen.
class BoltLight : public LightPainter {
  public:
    void follow(const FieldSight& sight, ChangedAreas& changed) override;
    void paint(LightCanvas& canvas) const override;

  private:
    using Path = std::vector<LightPoint>;  ///< from above to below

    void lightSky(ChangedAreas& changed);
    void paintSky(LightCanvas& canvas) const;
    void paintBolt(const Path& bolt, LightCanvas& canvas) const;

    bool m_lightsSky = true;
    const Skyline* m_skyline = nullptr;
    double m_radius = 0, m_far = 0;
    int m_height = 0;  ///< of the picture
    std::vector<Path> m_bolts;
    std::vector<double> m_sky;  ///< how strong its light is at the top, by column
};

}  // namespace skylob
