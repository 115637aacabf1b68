#include "battle/Explosion.h"

namespace skylob {

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
    std::optional<FieldScene::Blast>& seen = animation.scene().blast;
    animation.start();
    for (int width = 2; width <= maximum; ++width) {
        seen = {{at.x, y}, width, maximum, landing};
        for (const Colour colour : {kYellow, kWhite}) {
            picture.setPassingPoint(at.x, y, colour, width);
            animation.hold(delayCount);
        }
    }
    // Quirk "no craters": the mark is seen on the screen alone and the ground stays.
    picture.setPassingPoint(at.x, y, kBlack, maximum + 1);
    seen.reset();
    animation.show();
}

}  // namespace skylob
