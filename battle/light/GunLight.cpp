#include "battle/light/GunLight.h"

#include <algorithm>

#include "battle/light/LightMath.h"
#include "look/Theme.h"

namespace skylob {

namespace {
constexpr double kSignGlow = 13;  // in units of the gun's grid
}

LightPoint GunLight::Gun::sign() const {
    const GunScale scale = gunScale(area.width, area.height);
    return {area.x + kTurnSignX * scale.x, area.y + kTurnSignY * scale.y};
}

double GunLight::Gun::signGlow() const {
    return pose.onTurn ? kSignGlow * gunScale(area.width, area.height).barrel : 0;
}

PixelRect GunLight::Gun::image() const {
    if (!drawing) return {};
    return {area.x + drawing->x, area.y + drawing->y, drawing->image.width, drawing->image.height};
}

PixelRect GunLight::Gun::seen() const {
    return drawing ? united(image(), areaAround(sign(), signGlow())) : PixelRect{};
}

void GunLight::follow(const FieldSight& sight, ChangedAreas& changed) {
    for (const int side : kSides) {
        Gun& gun = m_guns[side];
        const PixelRect area = sight.picture.pieceArea(side);
        const GunPose pose = gunPose(side, sight);
        if (gun.pose == pose && gun.area == area) continue;
        changed.add(gun.seen());
        gun = {pose, area, nullptr};
        if (!area.isEmpty()) gun.drawing = m_drawings.draw(pose, {area.width, area.height});
        changed.add(gun.seen());
    }
}

bool GunLight::isIn(int py) const {
    return std::any_of(kSides.begin(), kSides.end(), [&](int side) {
        const PixelRect image = m_guns[side].image();
        return py >= image.y && py < image.bottom();
    });
}

bool GunLight::covers(int px, int py) const {
    return std::any_of(kSides.begin(), kSides.end(), [&](int side) {
        const PixelRect image = m_guns[side].image();
        if (py < image.y || py >= image.bottom() || px < image.x || px >= image.right())
            return false;
        const int at = (py - image.y) * image.width + px - image.x;
        return m_guns[side].drawing->image.pixels[static_cast<std::size_t>(at)] != 0;
    });
}

void GunLight::paint(LightCanvas& canvas) const {
    for (const int side : kSides) {
        const Gun& gun = m_guns[side];
        if (!gun.drawing) continue;
        if (gun.pose.onTurn) canvas.glow(gun.sign(), gun.signGlow(), sideColour(side), 0.4);
        canvas.image(gun.drawing->image, gun.image().x, gun.image().y);
    }
}

}  // namespace skylob
