#pragma once

namespace skylob {

/// What a shell that has come down has done.
enum class Landing { OutOfBounds, SelfHit, DirectHit, NearMiss, Miss };

/// A direct hit, or one on oneself.
constexpr bool isHit(Landing landing) {
    return landing == Landing::DirectHit || landing == Landing::SelfHit;
}

/// What a shell that came down in column x has done, given the columns of both pieces.
Landing classifyLanding(int x, int shooterX, int targetX);

/// The men that a near miss kills, `distance` columns beside a piece with `menLeft` men.
int nearMissKills(int menLeft, int distance);

}  // namespace skylob
