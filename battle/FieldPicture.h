#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "base/Colour.h"
#include "base/PerSide.h"
#include "battle/KeptRuns.h"
#include "battle/PixelRect.h"

namespace skylob {

/// The battlefield's picture. It is drawn in field units, x 1 (left edge) to 1000 (right edge)
/// and y 1 (bottom) to 1000 (top), onto device pixels without antialiasing.
///
/// It is two pictures. The persistent one is what refresh() brings back; the screen picture is
/// what the player sees: the persistent picture with the two pieces on it, and on top whatever has
/// been drawn for the moment. Of the persistent one only that is stored which is covered. What lies
/// outside the picture is cut off. A picture of no size is valid and draws nothing: a game without
/// a screen uses it.
///
/// A `width` is that of the pen, 1 or more; a dot is square at a width of 1 and round above.
class FieldPicture {
  public:
    /// An image with premultiplied alpha, 0xAARRGGBB, row by row.
    struct PieceImage {
        int width = 0, height = 0;
        std::vector<std::uint32_t> pixels;
    };

    /// The size of a piece in field units, and how far it stands above the ground under it.
    static constexpr int kPieceWidth = 24, kPieceHeight = 46, kPieceTop = 30;

    /// Makes both pictures `width` x `height` device pixels (0 or more) of black and takes the
    /// pieces off the field. Pens are `dotScale` (at least 1) device pixels per unit of width.
    void resize(int width, int height, int dotScale);

    int width() const { return m_width; }
    int height() const { return m_height; }
    int dotScale() const { return m_dotScale; }

    /// The device pixels of a column and of a height, and those of a dot; outside the picture where
    /// the units are outside the field.
    int column(int x) const;
    int row(int y) const;
    PixelRect dotArea(int x, int y, int width = 1) const;

    /// Blackens both pictures.
    void clear();

    /// A dot, in both pictures.
    void setPoint(int x, int y, Colour colour, int width = 1);

    /// A dot on the screen picture alone: of a shell, a blast, a meteor, a bolt.
    void setPassingPoint(int x, int y, Colour colour, int width = 1);

    /// The dots on the screen picture alone, in the order of drawing. clear() and refresh() take
    /// them away; a resize() leaves them here, so that they can be drawn again.
    struct PassingPoint {
        int x, y;
        Colour colour;
        int width;
    };
    const std::vector<PassingPoint>& passingPoints() const { return m_passing; }

    /// The colour seen at a point; black outside the picture. Where a point is a square of
    /// several device pixels that is one of them: see liftPoint for all.
    Colour pixel(int x, int y) const;

    /// A line along each column from the bottom up to its height, included; in both pictures. The
    /// first height is of no column: they count from 1.
    void ground(std::span<const int> heights, Colour colour, int width = 1);

    /// A filled circle, round in pixels, in both pictures; `radius` is in horizontal units.
    void filledCircle(int x, int y, int radius, Colour colour);

    /// The pixels of the screen picture under a dot.
    struct LiftedPoint {
        PixelRect area;
        std::vector<std::uint32_t> pixels;
        int making;           ///< what makings() was
        std::size_t passing;  ///< how many passing points there were
    };
    LiftedPoint liftPoint(int x, int y, int width = 1) const;

    /// Puts lifted pixels back onto the screen picture, exactly as they were. Nothing but dots at
    /// that place, of that width, may have been drawn since: they are gone. Does nothing if the
    /// picture has been resized, cleared or refreshed: the dot went with that.
    void putBack(const LiftedPoint& lifted);

    /// The image of a side's piece, to be drawn unscaled: pieceSize() tells the fitting size.
    void setPieceImage(int side, PieceImage image);
    struct PixelSize {
        int width = 0, height = 0;
    };
    PixelSize pieceSize() const;

    /// Stands a side's piece on column x where the ground is `groundHeight` high. It is seen
    /// after the next refresh().
    void placePiece(int side, int x, int groundHeight);
    void hidePieces();
    /// The device pixels that a piece takes up; empty while it is hidden.
    PixelRect pieceArea(int side) const;
    const PieceImage& pieceImage(int side) const { return m_pieces[side].image; }

    /// Whether the screen picture shows a side's piece at that device pixel of it: the piece's
    /// image is there and not transparent, and nothing has been drawn upon it since the last
    /// refresh().
    bool showsPiece(int side, int px, int py) const;

    /// Rebuilds the screen picture: the persistent picture, then the pieces.
    void refresh();

    /// The screen picture, 0xFFRRGGBB row by row; valid until the next resize().
    const std::uint32_t* screenPixels() const { return m_screen.data(); }

    /// A device pixel of the persistent picture, which must lie in it, in the same way.
    std::uint32_t persistentPixel(int px, int py) const;

    /// Counts how often the whole picture has been made anew: resized, cleared or refreshed.
    int makings() const { return m_making; }

    /// What has changed on the screen picture since the last call.
    PixelRect takeDirty();

  private:
    PixelRect clipped(const PixelRect& area) const;
    std::size_t index(int px, int py) const;
    enum class Pictures { Both, ScreenOnly };
    void drawDot(const PixelRect& dot, int width, std::uint32_t value, Pictures into);
    void fillRow(int px, int py, int length, std::uint32_t value, Pictures into);
    void fill(const PixelRect& area, std::uint32_t value, Pictures into);
    void fillBelow(const std::vector<int>& tops, std::uint32_t value);
    void cover(const PixelRect& row);
    void markDirty(const PixelRect& area);

    struct Piece {
        PieceImage image;
        PixelRect area;

        PixelRect seen() const;
        std::uint32_t pixel(int px, int py) const;
    };

    int m_width = 0, m_height = 0, m_dotScale = 1;
    std::vector<std::uint32_t> m_screen;
    KeptRuns m_covered;  ///< of the persistent picture, which is the screen's elsewhere
    PerSide<Piece> m_pieces;
    std::vector<PassingPoint> m_passing;
    PixelRect m_dirty;
    int m_making = 0;
};

}  // namespace skylob
