#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "battle/PixelRect.h"

namespace skylob {

class FieldLayer;

/// A squall of rain and sheet lightning over the field, for the minutes in which a storm holds it.
/// It lights what is dark in the sky and nothing else: black pixels of the rules' picture, or in
/// the place of its pieces, in which no gun is shown, and only to make them brighter. Its chance is
/// its own, so that what the rules draw stays the same. All measures are device pixels of the
/// picture.
class StormShow {
  public:
    /// Lies over what is shown there, and over earlier lights, as 0xAARRGGBB.
    struct Light {
        PixelRect area;
        std::uint32_t pixel = 0;
    };

    /// Lets a tenth of a second go by over what `layer` shows. With reduced motion the rain stands
    /// still, and nothing flickers.
    void advance(FieldLayer& layer);

    /// No light from now on.
    void end();

    const std::vector<Light>& lights() const { return m_lights; }

    /// Outside of these nothing has changed by the last advance() or end(). They may overlap.
    const std::vector<PixelRect>& changes() const { return m_changes; }

  private:
    struct Drop {
        int x, y;  ///< its upper end
        bool isNear;
    };

    int below(int end);
    int inSquall();
    void strew(const FieldLayer& layer);
    void flicker(FieldLayer& layer);
    void blow(FieldLayer& layer);
    void fall(Drop& drop);
    void show(Drop& drop, FieldLayer& layer);
    void lightUp(const PixelRect& area, std::uint32_t pixel, FieldLayer& layer);
    void addRun(const PixelRect& run, std::uint32_t pixel);

    std::minstd_rand m_chance;
    std::vector<Drop> m_drops;
    int m_width = 0, m_height = 0;  ///< of the picture that the drops were strewn over
    int m_squall = 0;               ///< the left end of where it rains
    int m_flash = 0;                ///< pictures that are left of the present flicker
    std::vector<Light> m_lights;
    std::vector<PixelRect> m_lit, m_changes;
};

}  // namespace skylob
