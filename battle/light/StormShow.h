#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "battle/FieldPicture.h"

namespace skylob {

/// A squall of rain and sheet lightning over the field, for the minutes in which a storm holds it.
/// It lights black pixels of the picture and no other, and leaves the picture itself alone; its
/// chance is its own, so that what the rules draw stays the same. All measures are device pixels of
/// the picture.
class StormShow {
  public:
    /// Black pixels of the picture, to be shown as 0xFFRRGGBB; later lights lie over earlier ones.
    struct Light {
        PixelRect area;
        std::uint32_t pixel = 0;
    };

    /// Lets a tenth of a second go by over `picture`.
    void advance(const FieldPicture& picture);

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
    void strew(const FieldPicture& picture);
    void flicker(const FieldPicture& picture);
    void fall(Drop& drop, const FieldPicture& picture);
    void lightUp(const PixelRect& area, std::uint32_t pixel, const FieldPicture& picture);

    std::minstd_rand m_chance;
    std::vector<Drop> m_drops;
    int m_width = 0, m_height = 0;  ///< of the picture that the drops were strewn over
    int m_squall = 0;               ///< the left end of where it rains
    int m_flash = 0;                ///< pictures that are left of the present flicker
    std::vector<Light> m_lights;
    std::vector<PixelRect> m_lit, m_changes;
};

}  // namespace skylob
