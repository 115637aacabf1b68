#pragma once

#include <vector>

namespace skylob {

/// A part of the desktop, in logical pixels.
struct Area {
    int x = 0, y = 0, width = 0, height = 0;

    bool operator==(const Area&) const = default;
};

/// Where a window of `width` x `height` is to stand on `display` so that it hides as little as can
/// be of what is `toBeSeen`: among the places that hide the least, the one whose middle is nearest
/// to that of `over`. A window that is larger than the display begins at its upper left corner.
Area clearPlace(int width, int height, const Area& display, const Area& over,
                const std::vector<Area>& toBeSeen);

}  // namespace skylob
