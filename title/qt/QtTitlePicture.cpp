#include "title/qt/QtTitlePicture.h"

#include <QPainter>
#include <QPainterPath>

#include "look/qt/QtShapes.h"
#include "title/TitleScene.h"

namespace skylob {

namespace {

void fill(QPainter& painter, const QPolygonF& polygon, QRgb colour) {
    QPainterPath path;
    path.addPolygon(polygon);
    painter.fillPath(path, QColor::fromRgb(colour));
}

void paintSky(QPainter& painter) {
    QLinearGradient sky{0, 0, 0, kTitleHeight};
    sky.setColorAt(0, QColor{0x05, 0x07, 0x0F});
    sky.setColorAt(0.7, QColor{0x10, 0x1B, 0x38});
    sky.setColorAt(1, QColor{0x1B, 0x2C, 0x55});
    painter.fillRect(0, 0, kTitleWidth, kTitleHeight, sky);

    const QPointF moon{470, 72};
    QRadialGradient glow{moon, 110};
    glow.setColorAt(0, QColor{0x6F, 0xE0, 0xEC, 70});
    glow.setColorAt(0.4, QColor{0x6F, 0xE0, 0xEC, 38});
    glow.setColorAt(1, QColor{0x6F, 0xE0, 0xEC, 0});
    painter.fillRect(QRectF{moon.x() - 110, 0, 220, moon.y() + 110}, glow);
    QPainterPath disc, shadow;
    disc.addEllipse(moon, 36, 36);
    shadow.addEllipse(QPointF{492, 66}, 34, 34);
    painter.fillPath(disc.subtracted(shadow), QColor{0x6F, 0xE0, 0xEC});
}

void paintLand(QPainter& painter) {
    fill(painter,
         {{0, 222},
          {70, 196},
          {128, 221},
          {213, 176},
          {262, 205},
          {400, 190},
          {480, 210},
          {548, 182},
          {640, 220},
          {640, 280},
          {0, 280}},
         0x16244A);
    fill(painter,
         {{110, 280},
          {110, 256},
          {190, 238},
          {300, 106},
          {322, 92},
          {338, 103},
          {392, 183},
          {452, 239},
          {540, 258},
          {540, 280}},
         0x0F1834);
    fill(painter,
         {{322, 92}, {338, 103}, {392, 183}, {452, 239}, {396, 252}, {330, 151}, {334, 122}},
         0x1C2A55);
    fill(painter, {{0, 251}, {100, 258}, {320, 266}, {520, 257}, {640, 250}, {640, 280}, {0, 280}},
         0x0A1126);
}

}  // namespace

void paintTitleBackdrop(QPainter& painter, const QtShapes& shapes) {
    paintSky(painter);
    paintLand(painter);
    shapes.paint(painter, QStringLiteral("piece1"), {84, 232, 40, 40}, QtShapes::Edges::Smooth);
    shapes.paint(painter, QStringLiteral("piece2"), {516, 232, 40, 40}, QtShapes::Edges::Smooth);
}

void paintTitleSpot(QPainter& painter, const TitleSpot& spot) {
    QColor colour = QColor::fromRgb(spot.colour);
    colour.setAlpha(spot.alpha);
    const bool ring = spot.ringWidth > 0;
    painter.setPen(ring ? QPen{colour, spot.ringWidth} : QPen{Qt::NoPen});
    painter.setBrush(ring ? QBrush{} : QBrush{colour});
    painter.drawEllipse(QPointF{spot.x, spot.y}, spot.radius, spot.radius);
}

void paintTitleGround(QPainter& painter) {
    QLinearGradient ground{0, 280, 0, 440};
    ground.setColorAt(0, QColor{0x0A, 0x11, 0x26});
    ground.setColorAt(1, QColor{0x13, 0x1D, 0x36});
    painter.fillRect(0, 280, 640, 160, ground);
    fill(painter,
         {{250, 440},
          {400, 388},
          {465, 356},
          {519, 324},
          {548, 316},
          {572, 328},
          {640, 371},
          {640, 440}},
         0x121E3C);
    fill(painter, {{548, 316}, {572, 328}, {640, 371}, {640, 440}, {606, 440}, {560, 352}},
         0x182749);
}

}  // namespace skylob
