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
    animation.start();
    for (int width = 2; width <= maximum; ++width) {
        for (const Colour colour : {kYellow, kWhite}) {
            picture.setPassingPoint(at.x, y, colour, width);
            animation.hold(delayCount);
        }
    }
    // Quirk "no craters": the mark is seen on the screen alone and the ground stays.
    picture.setPassingPoint(at.x, y, kBlack, maximum + 1);
    animation.show();
}

}  // namespace skylob
