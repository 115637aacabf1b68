#pragma once

#include "battle/BattleState.h"
#include "battle/FieldPoint.h"

namespace skylob {

/// The aim of a gun that is drawn across the field from the ground under its piece to `to`: the
/// shell leaves in that direction, a unit of distance is one of speed. What lies beside the bars'
/// ranges is brought to the nearer end: below the piece the gun is flat, behind it straight up.
Aim aimByDragging(int side, FieldPoint piece, FieldPoint to);

}  // namespace skylob
