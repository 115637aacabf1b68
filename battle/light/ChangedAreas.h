#pragma once

#include <vector>

#include "battle/PixelRect.h"

namespace skylob {

/// The parts of a picture that have changed: a few rectangles that hold them all. What lies close
/// together is put into one; a hundred lights far apart stay small areas.
class ChangedAreas {
  public:
    /// Forgets everything. What lies outside of `whole` is cut off from now on.
    void start(const PixelRect& whole);

    void add(const PixelRect& area);
    void addWhole();

    const std::vector<PixelRect>& areas() const { return m_areas; }

  private:
    PixelRect m_whole;
    std::vector<PixelRect> m_areas;
};

}  // namespace skylob
