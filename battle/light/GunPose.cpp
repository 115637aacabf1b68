#include "battle/light/GunPose.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "battle/ShellFlight.h"

namespace skylob {

namespace {

/// The field is stretched over the display, and so is every direction on it.
double turnOnDisplay(double direction, const FieldPicture& picture) {
    return std::atan2(std::sin(direction) * picture.width(),
                      std::cos(direction) * picture.height());
}

/// Back at once, and slowly forward again.
int recoilOf(int side, const FieldScene::Flight& flight) {
    constexpr std::array kTenths{24, 34, 30, 24, 18, 13, 9, 6, 3};
    if (flight.side != side || !flight.inTheAir || flight.path.empty()) return 0;
    const std::size_t step = flight.path.size() - 1;
    return step < kTenths.size() ? kTenths.at(step) : 0;
}

}  // namespace

GunPose gunPose(int side, const FieldSight& sight) {
    GunPose pose{.side = side, .wrecked = sight.scene.wrecked[side]};
    if (pose.wrecked) return pose;
    pose.turn = turnOnDisplay(launchDirection(side, sight.state.aim[side].angle), sight.picture);
    if (sight.motion == Motion::Full) pose.recoil = recoilOf(side, sight.scene.flight);
    pose.onTurn = sight.state.turnNotice.side == side;
    return pose;
}

GunScale gunScale(int width, int height) {
    const double x = width / kGunGrid, y = height / kGunGrid;
    return {x, y, std::min(x, y)};
}

LightPoint muzzleOf(const GunPose& pose, const PixelRect& area) {
    const GunScale scale = gunScale(area.width, area.height);
    const double reach = (kBarrelReach - pose.recoil / 10.0) * scale.barrel;
    return {area.x + kPivotX * scale.x + std::sin(pose.turn) * reach,
            area.y + kPivotY * scale.y - std::cos(pose.turn) * reach};
}

}  // namespace skylob
