#pragma once

#include <QRect>
#include <QSize>

#include "base/PerSide.h"

namespace skylob {

/// Where the controls of one side's frame stand in it.
struct SidePanelLayout {
    QRect labelSpeed, scrollSpeed, labelLastSpeed;
    QRect labelAngle, scrollAngle, labelLastAngle;
    QRect labelMenLeft, menGauge, labelLastLanding;
};

/// Where everything stands on the battle screen, in logical pixels.
struct frmPlayGameLayout {
    QSize screen;
    QRect field;
    QRect labelReport, labelScore;  ///< the row below the field
    PerSide<QRect> frame;           ///< the sides' frames; in the same place when only one is shown
    bool oneFrameAtATime = false;
    SidePanelLayout inFrame;
    QRect labelRoundNumber, cmdShoot, cmdQuit;
    bool shootHasCaption = false;
    int shootPicture = 0;  ///< the edge length of the shoot button's picture
    QRect strip;           ///< the frame around the options; what follows is relative to it
    QRect labelGameSpeed, scrollGameSpeed;
    bool gameSpeedInStrip = false;  ///< otherwise the two are relative to the screen, label centred
    QRect chkSound, scrollVolume, chkTrajectory, chkMeteors, chkLightning, chkWind, chkEffects;
};

/// The layout for a screen size: kSmallScreen fits a display of 800 x 600, kNormalScreen one of
/// 1024 x 768, kLargeScreen one of 1280 x 800. Any other size is laid out as kNormalScreen.
const frmPlayGameLayout& layoutForScreenSize(int screenSize);

/// The same, but where the window would be larger than `room`, the largest one that fits; the
/// smallest one where none does.
const frmPlayGameLayout& layoutForRoom(int screenSize, const QSize& room);

/// The layout in a larger screen, or the same one where `size` is not larger: the field grows both
/// ways, the rows below it keep their height and follow the lower edge. The sides' frames stay at
/// the ends, what is between them in the middle, and the strip's groups spread over the width.
frmPlayGameLayout stretched(const frmPlayGameLayout& smallest, const QSize& size);

/// How many device pixels wide a pen of width 1 is on a field of `size` logical pixels, on a
/// display with that many device pixels per logical one. On a field of its layout's own size,
/// `smallest`, that is the ratio; it grows with the field, and lines of width 2 touch each other.
int dotScaleOf(const QSize& smallest, const QSize& size, qreal ratio);

}  // namespace skylob
