#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "battle/light/LightPainter.h"

namespace skylob {

class GunDrawings;
class GunLight;

/// The field as the player sees it: the rules' picture with light upon it. Light falls on black
/// pixels and in the place of the pieces' images, which are taken off and painted anew; every
/// other pixel of the rules' picture keeps its colour. Nothing here is read by a rule or draws a
/// number.
class FieldLayer {
  public:
    /// All must outlive the layer. Without drawings of guns the pieces are as the rules draw them.
    /// It is on.
    FieldLayer(const FieldPicture& picture, const FieldScene& scene, const BattleState& state,
               GunDrawings* guns = nullptr);
    ~FieldLayer();

    FieldLayer(const FieldLayer&) = delete;
    FieldLayer& operator=(const FieldLayer&) = delete;

    /// Off is exactly the rules' picture. To be seen after the next update().
    void setOn(bool on);
    bool isOn() const { return m_on; }

    /// From the next update() on.
    void setMotion(Motion motion) { m_motion = motion; }
    Motion motion() const { return m_motion; }

    /// Brings the layer in line with the picture, of which `changed` has changed, and with what is
    /// happening. Returns the areas to be shown anew, valid until the next call.
    const std::vector<PixelRect>& update(const PixelRect& changed);

    /// A part of what is to be shown.
    struct Part {
        PixelRect area;
        const std::uint32_t* pixels;  ///< the first row's, 0xFFRRGGBB
        int stride;                   ///< from one row to the next, in pixels

        const std::uint32_t* row(int y) const {
            return pixels + std::ptrdiff_t{y - area.y} * stride;
        }
    };
    using Sink = std::function<void(const Part&)>;

    /// Hands what is to be shown in an area to `sink`, in parts from above to below, each of them
    /// valid while it is called: there need be no whole picture. It is the rules' picture with the
    /// light of the last update(); that picture alone when off, or as long as it has got another
    /// size since.
    void paint(const PixelRect& area, const Sink& sink);

    /// All of that, row by row. It is kept until something changes, when it is no longer valid: for
    /// whoever looks or paints again and again meanwhile.
    const std::uint32_t* whole();

    /// The size of what is to be shown.
    int width() const { return m_picture.width(); }
    int height() const { return m_picture.height(); }

    /// The rules' picture under it, of that size.
    const std::uint32_t* rules() const { return m_picture.screenPixels(); }

    /// Whether guns are drawn in that row, in place of the rules' images.
    bool showsGuns(int py) const;
    /// In such a row: whether the sky is seen in that pixel, and no part of a gun.
    bool showsSky(int px, int py) const;

  private:
    template <typename Painter, typename... Ports>
    const Painter& add(Ports&... ports);
    bool isLit() const;
    const std::uint32_t* stored() const;
    bool takeSize();
    void look(bool remade);
    std::size_t index(int px, int py) const;
    void compose(const PixelRect& area);
    void composeRow(int y);
    void composePiece(int side);

    const FieldPicture& m_picture;
    const FieldScene& m_scene;
    const BattleState& m_state;
    std::vector<std::unique_ptr<LightPainter>> m_painters;  ///< the lowest light first
    const GunLight* m_guns = nullptr;                       ///< one of them, or null
    bool m_on = true, m_switched = true;
    Motion m_motion = Motion::Full;
    int m_width = 0, m_height = 0;  ///< the picture's at the last update(); 0 while it is off
    int m_makings = 0, m_step = 0;
    Skyline m_skyline;
    ChangedAreas m_changed;
    LightCanvas m_canvas;
    std::vector<std::uint32_t> m_band;   ///< composed, row by row
    std::vector<std::uint32_t> m_whole;  ///< what is to be shown, or empty
};

}  // namespace skylob
