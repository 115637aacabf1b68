#include "battle/Explosion.h"

namespace skylob {

namespace {

bool isHit(Landing landing) {
    return landing == Landing::DirectHit || landing == Landing::SelfHit;
}

}  // namespace

std::string_view landingSound(Landing landing) {
    switch (landing) {
        case Landing::OutOfBounds:
            return "outofbounds";
        case Landing::SelfHit:
        case Landing::DirectHit:
            return "bullseye";
        case Landing::NearMiss:
            return "nearmiss";
        case Landing::Miss:
            break;
    }
    return "explosion";
}

void animateExplosion(FieldPoint at, Landing landing, FieldAnimation& animation,
                      std::int32_t delayCount) {
    const int maximum = isHit(landing) ? 22 : 6;
    const int y = isHit(landing) ? at.y + 16 : at.y;
    FieldPicture& picture = animation.picture();
    picture.setPersistentDrawing(false);
    animation.start();
    for (int width = 2; width <= maximum; ++width) {
        picture.setPenWidth(width);
        for (const Colour colour : {kYellow, kWhite}) {
            picture.setPoint(at.x, y, colour);
            animation.hold(delayCount);
        }
    }
    picture.setPenWidth(maximum + 1);
    picture.setPoint(at.x, y, kBlack);
    animation.show();
    picture.setPenWidth(1);
    picture.setPersistentDrawing(true);
}

}  // namespace skylob
