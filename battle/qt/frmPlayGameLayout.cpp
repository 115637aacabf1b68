#include "battle/qt/frmPlayGameLayout.h"

#include "base/basSkylob.h"

namespace skylob {

namespace {

const frmPlayGameLayout kSmall{
    .screen = {784, 548},
    .field = {8, 8, 768, 400},
    .frame = {QRect{8, 416, 424, 88}, QRect{8, 416, 424, 88}},
    .oneFrameAtATime = true,
    .inFrame = {.labelSpeed = {12, 29, 92, 22},
                .scrollSpeed = {108, 31, 176, 18},
                .labelAngle = {12, 55, 92, 22},
                .scrollAngle = {108, 57, 176, 18},
                .labelMenLeft = {296, 29, 116, 22},
                .menGauge = {296, 62, 116, 8}},
    .labelRoundNumber = {504, 416, 192, 26},
    .cmdShoot = {440, 416, 56, 88},
    .cmdQuit = {704, 416, 72, 88},
    .shootHasCaption = false,
    .shootPicture = 36,
    .strip = {8, 512, 768, 28},
    .labelGameSpeed = {504, 450, 192, 20},
    .scrollGameSpeed = {504, 478, 192, 18},
    .gameSpeedInStrip = false,
    .chkSound = {16, 2, 112, 24},
    .chkTrajectory = {148, 2, 128, 24},
    .chkMeteors = {296, 2, 116, 24},
    .chkLightning = {432, 2, 124, 24},
    .chkWind = {580, 2, 172, 24},
};

const frmPlayGameLayout kNormal{
    .screen = {1008, 704},
    .field = {12, 12, 984, 512},
    .frame = {QRect{12, 536, 344, 120}, QRect{652, 536, 344, 120}},
    .oneFrameAtATime = false,
    .inFrame = {.labelSpeed = {12, 32, 92, 22},
                .scrollSpeed = {108, 34, 224, 18},
                .labelAngle = {12, 60, 92, 22},
                .scrollAngle = {108, 62, 224, 18},
                .labelMenLeft = {12, 90, 124, 22},
                .menGauge = {140, 97, 192, 8}},
    .labelRoundNumber = {368, 534, 272, 28},
    .cmdShoot = {368, 568, 176, 88},
    .cmdQuit = {552, 568, 88, 88},
    .shootHasCaption = true,
    .shootPicture = 24,
    .strip = {12, 664, 984, 32},
    .labelGameSpeed = {12, 5, 124, 22},
    .scrollGameSpeed = {140, 7, 184, 18},
    .gameSpeedInStrip = true,
    .chkSound = {352, 4, 88, 24},
    .chkTrajectory = {452, 4, 112, 24},
    .chkMeteors = {576, 4, 104, 24},
    .chkLightning = {692, 4, 112, 24},
    .chkWind = {816, 4, 156, 24},
};

const frmPlayGameLayout kLarge{
    .screen = {1264, 740},
    .field = {12, 12, 1240, 580},
    .frame = {QRect{12, 604, 440, 84}, QRect{812, 604, 440, 84}},
    .oneFrameAtATime = false,
    .inFrame = {.labelSpeed = {12, 29, 92, 22},
                .scrollSpeed = {108, 31, 192, 18},
                .labelAngle = {12, 55, 92, 22},
                .scrollAngle = {108, 57, 192, 18},
                .labelMenLeft = {312, 29, 116, 22},
                .menGauge = {312, 62, 116, 8}},
    .labelRoundNumber = {464, 602, 336, 26},
    .cmdShoot = {464, 632, 228, 56},
    .cmdQuit = {700, 632, 100, 56},
    .shootHasCaption = true,
    .shootPicture = 24,
    .strip = {12, 696, 1240, 32},
    .labelGameSpeed = {12, 5, 124, 22},
    .scrollGameSpeed = {140, 7, 240, 18},
    .gameSpeedInStrip = true,
    .chkSound = {452, 4, 100, 24},
    .chkTrajectory = {596, 4, 120, 24},
    .chkMeteors = {760, 4, 112, 24},
    .chkLightning = {916, 4, 120, 24},
    .chkWind = {1072, 4, 156, 24},
};

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

}  // namespace skylob
