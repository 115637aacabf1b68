#pragma once

#include <algorithm>

namespace skylob {

/// A rectangle of device pixels, y downwards; empty when width or height is 0.
struct PixelRect {
    int x = 0, y = 0, width = 0, height = 0;

    int right() const { return x + width; }    ///< the first column beyond it
    int bottom() const { return y + height; }  ///< the first row below it
    bool isEmpty() const { return width <= 0 || height <= 0; }
    bool operator==(const PixelRect&) const = default;
};

/// What the two have in common; empty when that is nothing.
inline PixelRect common(const PixelRect& a, const PixelRect& b) {
    const int left = std::max(a.x, b.x), top = std::max(a.y, b.y);
    return {left, top, std::max(std::min(a.right(), b.right()) - left, 0),
            std::max(std::min(a.bottom(), b.bottom()) - top, 0)};
}

/// The smallest that holds both.
inline PixelRect united(const PixelRect& a, const PixelRect& b) {
    if (a.isEmpty()) return b;
    if (b.isEmpty()) return a;
    const int left = std::min(a.x, b.x), top = std::min(a.y, b.y);
    return {left, top, std::max(a.right(), b.right()) - left,
            std::max(a.bottom(), b.bottom()) - top};
}

}  // namespace skylob
