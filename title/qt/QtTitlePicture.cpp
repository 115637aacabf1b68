#include "title/qt/QtTitlePicture.h"

#include <QPainter>
#include <QPainterPath>

#include "look/qt/QtColour.h"
#include "look/qt/QtShapes.h"
#include "title/TitleScene.h"

namespace skylob {

namespace {

QPointF centre(const TitleDisc& disc) {
    return {qreal(disc.x), qreal(disc.y)};
}

/// Drawings on a grid of the page's width, a unit a pixel.
void paintLand(QPainter& painter, const QtShapes& shapes, const QString& name) {
    shapes.paint(painter, name, {0, 0, kTitleWidth, kTitleWidth}, QtShapes::Edges::Smooth);
}

void paintPiece(QPainter& painter, const QtShapes& shapes, const QString& name,
                const TitlePiece& place) {
    const QRectF square(place.x, place.y, kTitlePieceSize, kTitlePieceSize);
    shapes.paint(painter, name, square, QtShapes::Edges::Smooth);
}

void paintSky(QPainter& painter) {
    QLinearGradient sky{0, 0, 0, kTitleHeight};
    sky.setColorAt(0, QColor{0x05, 0x07, 0x0F});
    sky.setColorAt(0.7, QColor{0x10, 0x1B, 0x38});
    sky.setColorAt(1, QColor{0x1B, 0x2C, 0x55});
    painter.fillRect(0, 0, kTitleWidth, kTitleHeight, sky);

    const auto light = [](int alpha) {
        QColor colour = toQColor(themeColour("moon"));
        colour.setAlpha(alpha);
        return colour;
    };
    constexpr int kReach = kTitleMoonGlow;
    const QPointF moon = centre(kTitleMoon);
    QRadialGradient glow{moon, kReach};
    glow.setColorAt(0, light(70));
    glow.setColorAt(0.4, light(38));
    glow.setColorAt(1, light(0));
    painter.fillRect(QRectF{moon.x() - kReach, 0, 2 * kReach, moon.y() + kReach}, glow);
    QPainterPath disc, shadow;
    disc.addEllipse(moon, kTitleMoon.radius, kTitleMoon.radius);
    shadow.addEllipse(centre(kTitleMoonShadow), kTitleMoonShadow.radius, kTitleMoonShadow.radius);
    painter.fillPath(disc.subtracted(shadow), light(255));
}

}  // namespace

void paintTitleBackdrop(QPainter& painter, const QtShapes& shapes) {
    paintSky(painter);
    paintLand(painter, shapes, QStringLiteral("title-land"));
    paintPiece(painter, shapes, QStringLiteral("piece1"), kTitleGun);
    paintPiece(painter, shapes, QStringLiteral("piece2"), kTitleTarget);
}

void paintTitleSpot(QPainter& painter, const TitleSpot& spot) {
    QColor colour = toQColor(spot.colour);
    colour.setAlpha(spot.alpha);
    const bool ring = spot.ringWidth > 0;
    painter.setPen(ring ? QPen{colour, spot.ringWidth} : QPen{Qt::NoPen});
    painter.setBrush(ring ? QBrush{} : QBrush{colour});
    painter.drawEllipse(QPointF{spot.x, spot.y}, spot.radius, spot.radius);
}

void paintTitleGround(QPainter& painter, const QtShapes& shapes) {
    QLinearGradient ground{0, kTitleHeight, 0, kTitlePageHeight};
    ground.setColorAt(0, toQColor(themeColour("earth")));
    ground.setColorAt(1, QColor{0x13, 0x1D, 0x36});
    painter.fillRect(0, kTitleHeight, kTitleWidth, kTitlePageHeight - kTitleHeight, ground);
    paintLand(painter, shapes, QStringLiteral("title-ground"));
}

}  // namespace skylob
