#pragma once

#include "battle/light/LightCanvas.h"

namespace skylob {

/// The device pixels that a circle touches; empty without a radius.
PixelRect areaAround(LightPoint at, double radius);

/// A number from 0 to below 1 that looks like chance and is the same for the same `number`: the
/// rules' chance is theirs.
double scattered(unsigned number);

/// What lies between two: `part` is 0 for the first one to 1 for the other.
Colour between(Colour first, Colour other, double part);
LightPoint between(LightPoint first, LightPoint other, double part);

}  // namespace skylob
