#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>
#include <vector>

#include "base/Colour.h"
#include "base/Rounding.h"
#include "battle/FieldPicture.h"

namespace skylob {

/// A place between device pixels: the first pixel's middle is at 0.5.
struct LightPoint {
    double x = 0, y = 0;

    bool operator==(const LightPoint&) const = default;
};

/// What is painted over one area of the field's picture, as pixels with premultiplied alpha. All
/// coordinates and lengths are device pixels of the whole picture, and what lies outside of the
/// area is cut off. A `strength` is 0 (nothing) to 1 (opaque).
class LightCanvas {
  public:
    /// Takes everything away and goes on with another area.
    void start(const PixelRect& area);

    const PixelRect& area() const { return m_area; }

    /// Light that is strongest in the middle and is gone at `radius`.
    void glow(LightPoint at, double radius, Colour colour, double strength);

    /// A disc whose edge is smooth.
    void disc(LightPoint at, double radius, Colour colour, double strength = 1);

    /// A line with round ends and smooth edges.
    void line(LightPoint from, LightPoint to, double width, Colour colour, double strength = 1);

    /// A convex polygon with smooth edges, its corners clockwise.
    void polygon(std::span<const LightPoint> corners, Colour colour, double strength = 1);

    /// An image, unscaled, its left upper pixel at x, y.
    void image(const FieldPicture::PieceImage& image, int x, int y);

    /// A single pixel, which must lie in the area.
    void pixel(int x, int y, Colour colour, double strength) {
        const std::uint32_t alpha = alphaOf(strength);
        lay(x, y, colour, {&alpha, 1});
    }

    /// Lays the colour where `coverage(x, y)`, asked with the middle of each pixel of the area
    /// between two corners, is more than 0; it is at most 1.
    template <typename Coverage>
    void shade(LightPoint low, LightPoint high, Colour colour, double strength, Coverage coverage) {
        // The limits are taken before they are made whole numbers: a shell may be far away.
        const int left = static_cast<int>(std::floor(std::max<double>(low.x, m_area.x)));
        const int top = static_cast<int>(std::floor(std::max<double>(low.y, m_area.y)));
        const int right = static_cast<int>(std::ceil(std::min<double>(high.x, m_area.right())));
        const int bottom = static_cast<int>(std::ceil(std::min<double>(high.y, m_area.bottom())));
        if (left >= right) return;
        // A row's alphas first and then its pixels, both without a branch: the compiler makes
        // several pixels at a time of that.
        const std::span<std::uint32_t> alphas{m_alphas.data(),
                                              static_cast<std::size_t>(right - left)};
        for (int y = top; y < bottom; ++y) {
            for (int x = left; x < right; ++x) {
                const double share = std::max(0.0, coverage(x + 0.5, y + 0.5));
                alphas[static_cast<std::size_t>(x - left)] = alphaOf(share * strength);
            }
            lay(left, y, colour, alphas);
        }
    }

    /// Makes the pixels of the area's part of a row opaque for which `isMeant(x)`.
    template <typename IsMeant>
    void cover(int y, Colour colour, IsMeant isMeant) {
        std::uint32_t* const line = row(y);
        const int left = m_area.x, width = m_area.width;
        for (int i = 0; i < width; ++i) line[i] = isMeant(left + i) ? colour.pixel() : line[i];
    }

    /// The pixels of the area's part of a row, 0xAARRGGBB with premultiplied alpha.
    const std::uint32_t* pixels(int y) const {
        return m_pixels.data() +
               static_cast<std::size_t>(y - m_area.y) * static_cast<std::size_t>(m_area.width);
    }

  private:
    std::uint32_t* row(int y) {
        return m_pixels.data() +
               static_cast<std::size_t>(y - m_area.y) * static_cast<std::size_t>(m_area.width);
    }
    static std::uint32_t alphaOf(double strength) {
        return static_cast<std::uint32_t>(roundToNearest(strength * 255));
    }
    /// The first of the pixels is at x, y.
    void lay(int x, int y, Colour colour, std::span<const std::uint32_t> alphas);

    PixelRect m_area;
    std::vector<std::uint32_t> m_alphas;  ///< of a part of a row
    std::vector<std::uint32_t> m_pixels;
};

}  // namespace skylob
