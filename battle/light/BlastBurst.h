#pragma once

#include "base/Motion.h"
#include "battle/light/LightBurst.h"

namespace skylob {

/// How far a blast has come.
struct BlastMoment {
    LightPoint at;                 ///< its middle, or the ground below it
    double unit = 1;               ///< the device pixels of a pen's width
    double age = 0;                ///< 0 (begins) to 1 (gone)
    Motion motion = Motion::Full;  ///< reduced: without flash, glow and sparks
};

/// A piece blows up: a fireball, sparks that fly far, light on the sky.
LightBurst fireball(const BlastMoment& moment);

/// A shell beside its target: pale dust is thrown over it, to the right where `towards` is 1, to
/// the left where it is -1.
LightBurst dustColumn(const BlastMoment& moment, int towards);

/// Nothing but ground has been hit: a small dull cloud.
LightBurst dullBlast(const BlastMoment& moment);

}  // namespace skylob
