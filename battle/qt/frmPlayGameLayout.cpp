#include "battle/qt/frmPlayGameLayout.h"

#include <QtMath>
#include <algorithm>
#include <initializer_list>

#include "base/basSkylob.h"
#include "battle/Battlefield.h"

namespace skylob {

namespace {

const frmPlayGameLayout kSmall{
    .screen = {784, 570},
    .field = {8, 8, 768, 400},
    .labelReport = {8, 411, 680, 20},
    .labelScore = {696, 411, 80, 20},
    .frame = {QRect{8, 438, 424, 88}, QRect{8, 438, 424, 88}},
    .oneFrameAtATime = true,
    .inFrame = {.labelSpeed = {12, 29, 92, 22},
                .scrollSpeed = {108, 31, 112, 18},
                .labelLastSpeed = {226, 29, 60, 22},
                .labelAngle = {12, 55, 92, 22},
                .scrollAngle = {108, 57, 112, 18},
                .labelLastAngle = {226, 55, 60, 22},
                .labelMenLeft = {296, 29, 116, 22},
                .menGauge = {296, 52, 116, 6},
                .labelLastLanding = {296, 58, 116, 22}},
    .labelRoundNumber = {504, 438, 192, 26},
    .cmdShoot = {440, 438, 56, 88},
    .cmdQuit = {704, 438, 72, 88},
    .shootHasCaption = false,
    .shootPicture = 36,
    .strip = {8, 534, 768, 28},
    .labelGameSpeed = {504, 472, 192, 20},
    .scrollGameSpeed = {504, 500, 192, 18},
    .gameSpeedInStrip = false,
    .chkSound = {8, 2, 78, 24},
    .scrollVolume = {88, 5, 96, 18},
    .chkTrajectory = {192, 2, 108, 24},
    .chkMeteors = {304, 2, 96, 24},
    .chkLightning = {404, 2, 104, 24},
    .chkWind = {512, 2, 128, 24},
    .chkEffects = {644, 2, 100, 24},
};

const frmPlayGameLayout kNormal{
    .screen = {1008, 728},
    .field = {12, 12, 984, 512},
    .labelReport = {12, 529, 880, 22},
    .labelScore = {896, 529, 100, 22},
    .frame = {QRect{12, 560, 344, 120}, QRect{652, 560, 344, 120}},
    .oneFrameAtATime = false,
    .inFrame = {.labelSpeed = {12, 32, 92, 22},
                .scrollSpeed = {108, 34, 160, 18},
                .labelLastSpeed = {274, 32, 60, 22},
                .labelAngle = {12, 60, 92, 22},
                .scrollAngle = {108, 62, 160, 18},
                .labelLastAngle = {274, 60, 60, 22},
                .labelMenLeft = {12, 90, 124, 22},
                .menGauge = {140, 97, 96, 8},
                .labelLastLanding = {246, 90, 88, 22}},
    .labelRoundNumber = {368, 558, 272, 28},
    .cmdShoot = {368, 592, 176, 88},
    .cmdQuit = {552, 592, 88, 88},
    .shootHasCaption = true,
    .shootPicture = 24,
    .strip = {12, 688, 984, 32},
    .labelGameSpeed = {12, 5, 118, 22},
    .scrollGameSpeed = {132, 7, 100, 18},
    .gameSpeedInStrip = true,
    .chkSound = {240, 4, 76, 24},
    .scrollVolume = {318, 7, 96, 18},
    .chkTrajectory = {424, 4, 108, 24},
    .chkMeteors = {536, 4, 96, 24},
    .chkLightning = {636, 4, 104, 24},
    .chkWind = {744, 4, 128, 24},
    .chkEffects = {876, 4, 96, 24},
};

const frmPlayGameLayout kLarge{
    .screen = {1264, 764},
    .field = {12, 12, 1240, 580},
    .labelReport = {12, 597, 1130, 22},
    .labelScore = {1150, 597, 102, 22},
    .frame = {QRect{12, 628, 440, 84}, QRect{812, 628, 440, 84}},
    .oneFrameAtATime = false,
    .inFrame = {.labelSpeed = {12, 29, 92, 22},
                .scrollSpeed = {108, 31, 132, 18},
                .labelLastSpeed = {246, 29, 60, 22},
                .labelAngle = {12, 55, 92, 22},
                .scrollAngle = {108, 57, 132, 18},
                .labelLastAngle = {246, 55, 60, 22},
                .labelMenLeft = {312, 29, 116, 22},
                .menGauge = {312, 52, 116, 6},
                .labelLastLanding = {312, 58, 116, 22}},
    .labelRoundNumber = {464, 626, 336, 26},
    .cmdShoot = {464, 656, 228, 56},
    .cmdQuit = {700, 656, 100, 56},
    .shootHasCaption = true,
    .shootPicture = 24,
    .strip = {12, 720, 1240, 32},
    .labelGameSpeed = {12, 5, 124, 22},
    .scrollGameSpeed = {140, 7, 160, 18},
    .gameSpeedInStrip = true,
    .chkSound = {316, 4, 80, 24},
    .scrollVolume = {400, 7, 140, 18},
    .chkTrajectory = {560, 4, 112, 24},
    .chkMeteors = {690, 4, 104, 24},
    .chkLightning = {812, 4, 112, 24},
    .chkWind = {942, 4, 138, 24},
    .chkEffects = {1100, 4, 110, 24},
};

/// Widgets that stand together, such as a bar behind its label.
using Group = std::initializer_list<QRect*>;

void moveBy(int dx, int dy, const Group& rects) {
    for (QRect* rect : rects) rect->translate(dx, dy);
}

/// Shares `width` out evenly to the gaps between the groups.
void spread(int width, const std::initializer_list<Group>& groups) {
    const int gaps = static_cast<int>(groups.size()) - 1;
    int before = 0;
    for (const Group& group : groups) moveBy(width * before++ / gaps, 0, group);
}

void spreadStrip(frmPlayGameLayout& of, int width) {
    const Group sound{&of.chkSound, &of.scrollVolume}, trajectory{&of.chkTrajectory};
    const Group meteors{&of.chkMeteors}, lightning{&of.chkLightning};
    const Group wind{&of.chkWind}, effects{&of.chkEffects};
    of.strip.setWidth(of.strip.width() + width);
    if (of.gameSpeedInStrip)
        spread(width, {{&of.labelGameSpeed, &of.scrollGameSpeed},
                       sound,
                       trajectory,
                       meteors,
                       lightning,
                       wind,
                       effects});
    else
        spread(width, {sound, trajectory, meteors, lightning, wind, effects});
}

}  // namespace

const frmPlayGameLayout& layoutForScreenSize(int screenSize) {
    switch (screenSize) {
        case kSmallScreen:
            return kSmall;
        case kLargeScreen:
            return kLarge;
        default:
            return kNormal;
    }
}

const frmPlayGameLayout& layoutForRoom(int screenSize, const QSize& room) {
    const frmPlayGameLayout& chosen = layoutForScreenSize(screenSize);
    for (const auto* layout : {&kLarge, &kNormal})
        if (layout->screen.width() <= chosen.screen.width() &&
            layout->screen.boundedTo(room) == layout->screen)
            return *layout;
    return kSmall;
}

frmPlayGameLayout stretched(const frmPlayGameLayout& smallest, const QSize& size) {
    frmPlayGameLayout result = smallest;
    result.screen = size.expandedTo(smallest.screen);
    const int wider = result.screen.width() - smallest.screen.width();
    const int higher = result.screen.height() - smallest.screen.height();
    result.field.setSize(smallest.field.size() + QSize{wider, higher});
    result.labelReport.setWidth(smallest.labelReport.width() + wider);
    moveBy(0, higher, {&result.labelReport, &result.frame[1], &result.strip});
    moveBy(wider, higher, {&result.labelScore});
    moveBy(result.oneFrameAtATime ? 0 : wider, higher, {&result.frame[2]});
    moveBy(wider / 2, higher, {&result.labelRoundNumber, &result.cmdShoot, &result.cmdQuit});
    if (!result.gameSpeedInStrip)
        moveBy(wider / 2, higher, {&result.labelGameSpeed, &result.scrollGameSpeed});
    spreadStrip(result, wider);
    return result;
}

int dotScaleOf(const QSize& smallest, const QSize& size, qreal ratio) {
    const qreal larger = std::min(static_cast<qreal>(size.width()) / smallest.width(),
                                  static_cast<qreal>(size.height()) / smallest.height());
    // On a field that has grown in width alone, the ground's columns would have gaps.
    const int pitch = qCeil((size.width() * ratio - 1) / (kColumns - 1));
    return std::max({1, qRound(ratio * larger), (pitch + 1) / 2});
}

}  // namespace skylob
