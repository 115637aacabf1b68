#pragma once

#include "battle/light/LightPainter.h"

namespace skylob {

/// How a side's gun is to be seen at a moment.
struct GunPose {
    int side = kLeftSide;
    /// The barrel's direction in radians of the display: 0 straight up, more to the right.
    double turn = 0;
    int recoil = 0;  ///< how far the barrel is thrown back, in tenths of a unit of the gun's grid
    bool onTurn = false;
    bool wrecked = false;

    bool operator==(const GunPose&) const = default;
};

/// Guns are drawn on a grid that is stretched over the piece's area. On it the barrel turns about
/// the place where shells leave from, and ends that far from it.
inline constexpr double kGunGrid = 24, kPivotX = 12, kPivotY = 11.5, kBarrelReach = 12.6;
/// The middle of the sign above the gun of the side whose turn it is, and how large that is.
inline constexpr double kTurnSignX = 12, kTurnSignY = -10.5, kTurnSignSize = 12;

GunPose gunPose(int side, const FieldSight& sight);

/// The lengths of a unit of the grid on a piece of that many device pixels. A barrel keeps its
/// length in every direction and takes the shorter one.
struct GunScale {
    double x, y, barrel;
};
GunScale gunScale(int width, int height);

/// The middle of the barrel's end, in device pixels of the picture; `area` is the piece's.
LightPoint muzzleOf(const GunPose& pose, const PixelRect& area);

}  // namespace skylob
