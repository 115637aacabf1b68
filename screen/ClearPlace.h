#pragma once

#include <vector>

#include "screen/WindowPlace.h"

namespace skylob {

/// Where a window of `width` x `height`, its frame included, is to stand on `display` so that it
/// hides as little as can be of what is `toBeSeen`: among the places that hide the least, the one
/// whose middle is nearest to that of `over`. A window that is larger than the display begins at
/// its upper left corner.
DesktopArea clearPlace(int width, int height, const DesktopArea& display, const DesktopArea& over,
                       const std::vector<DesktopArea>& toBeSeen);

}  // namespace skylob
