#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "battle/FieldPicture.h"

namespace skylob {

/// Where the ground ends and the sky begins, in device pixels.
class Skyline {
  public:
    /// Reads it off the persistent picture, whose ground has that colour.
    void trace(const FieldPicture& picture, Colour ground);

    /// The width of the picture.
    int width() const { return static_cast<int>(m_top.size()); }

    /// The first row of the ground in that column of pixels; the picture's height if there is none.
    int top(int px) const { return m_top[static_cast<std::size_t>(px)]; }

    /// 0 on the ground's edge and below it, 1 well above it, `far` pixels or more: a bright sky
    /// begins that far above the ground, so that it does not take the edge away.
    double clearance(int px, int py, double far) const {
        return std::clamp((top(px) - 1 - py) / far, 0.0, 1.0);
    }

  private:
    std::vector<int> m_top;
};

}  // namespace skylob
