#include "battle/DragAim.h"

#include <cmath>

#include "base/Rounding.h"
#include "battle/ShellFlight.h"

namespace skylob {

Aim aimByDragging(int side, FieldPoint piece, FieldPoint to) {
    const double forward = side == kLeftSide ? to.x - piece.x : piece.x - to.x;
    const double up = to.y - (piece.y + kMuzzleHeight);
    const int fromVertical = roundToNearest(std::atan2(forward, up) / kDegree);
    return {kSpeedRange.held(roundToNearest(std::hypot(forward, up))),
            kAngleRange.held(90 - fromVertical)};
}

}  // namespace skylob
