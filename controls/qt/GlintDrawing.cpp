#include "controls/qt/GlintDrawing.h"

#include <QTransform>
#include <algorithm>
#include <cmath>

#include "controls/GlintLayout.h"

namespace skylob {

namespace {

/// A cut that ends between two device pixels is rounded as the toolkit rounds it when it clips a
/// window to its mask.
QRegion shapeOf(const GlintCanvas& canvas) {
    const GlintSize size = canvas.button.client;
    QRegion shape{0, 0, size.width, size.height};
    for (const GlintPixel& pixel : pixelsOutside(canvas.button.ButtonType, size))
        shape -= QRect{pixel.x, pixel.y, 1, 1};
    const QTransform toDevice = QTransform::fromScale(canvas.ratio, canvas.ratio) *
                                QTransform::fromTranslate(canvas.corner.x(), canvas.corner.y());
    return toDevice.map(shape).translated(-canvas.corner.toPoint());
}

}  // namespace

GlintDrawing::GlintDrawing(const GlintCanvas& of)
    : canvas{of},
      button{of.button},
      shades{of},
      ratio{of.ratio},
      line{std::max(1, static_cast<int>(std::floor(of.ratio)))},
      step{qRound(of.ratio)},
      shape{shapeOf(of)},
      width{shape.boundingRect().width()},
      height{shape.boundingRect().height()},
      pressed{of.state == kStatePressed},
      on{button.Value && button.CheckBoxBehaviour && !pressed},
      hover{of.over && of.enabled} {
}

}  // namespace skylob
