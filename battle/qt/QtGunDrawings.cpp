#include "battle/qt/QtGunDrawings.h"

#include <QPainter>
#include <cmath>
#include <numbers>

#include "look/qt/QtShapes.h"

namespace skylob {

namespace {

/// How far a drawing reaches beyond the piece's area, in units of the gun's grid.
constexpr double kBeside = 3, kAbove = kTurnSignSize / 2 - kTurnSignY + 1;
constexpr double kBarrelGrid = 32;      // of its drawing, which turns about the middle
constexpr std::size_t kMostKept = 100;  // drawings; a shot takes nine

constexpr double degrees(double radians) {
    return radians * 180 / std::numbers::pi;
}

QRectF squareAround(QPointF middle, double edge) {
    return {middle.x() - edge / 2, middle.y() - edge / 2, edge, edge};
}

QString nameFor(const char* drawing, int side) {
    return QLatin1String{drawing} + QString::number(side);
}

}  // namespace

FieldPicture::PieceImage pieceImage(const QImage& drawing) {
    FieldPicture::PieceImage image{drawing.width(), drawing.height(), {}};
    for (int y = 0; y < drawing.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(drawing.constScanLine(y));
        image.pixels.insert(image.pixels.end(), line, line + drawing.width());
    }
    return image;
}

std::shared_ptr<const GunDrawing> QtGunDrawings::draw(const GunPose& pose,
                                                      FieldPicture::PixelSize size) {
    const int turn = static_cast<int>(std::lround(degrees(pose.turn) * 10));
    const Key key{pose.side, turn, pose.recoil, size.width, size.height, pose.onTurn, pose.wrecked};
    const auto known = m_drawn.find(key);
    if (known != m_drawn.end()) return known->second;
    if (m_drawn.size() >= kMostKept) m_drawn.clear();
    return m_drawn[key] = std::make_shared<const GunDrawing>(drawn(pose, size));
}

GunDrawing QtGunDrawings::drawn(const GunPose& pose, FieldPicture::PixelSize size) const {
    const GunScale scale = gunScale(size.width, size.height);
    const int beside = static_cast<int>(std::ceil(kBeside * scale.x));
    const int above = static_cast<int>(std::ceil(kAbove * scale.y));
    QImage image{size.width + 2 * beside, size.height + above, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    QPainter painter{&image};
    paintGun(painter, pose, QRectF(beside, above, size.width, size.height));
    painter.end();
    return {pieceImage(image), -beside, -above};
}

void QtGunDrawings::paintGun(QPainter& painter, const GunPose& pose, const QRectF& box) const {
    const auto paint = [&](const QString& name) {
        m_shapes.paint(painter, name, box, QtShapes::Edges::Smooth);
    };
    if (pose.wrecked) return paint(nameFor("wreck", pose.side));
    painter.save();
    if (pose.side == kRightSide) {
        painter.translate(2 * box.center().x(), 0);
        painter.scale(-1, 1);
    }
    paint(QStringLiteral("bed"));
    paint(nameFor("flag", pose.side));
    paintBarrel(painter, pose, box);
    paint(nameFor("carriage", pose.side));
    painter.restore();
    if (pose.onTurn) paintSign(painter, pose.side, box);
}

/// The painter draws a gun that faces right.
void QtGunDrawings::paintBarrel(QPainter& painter, const GunPose& pose, const QRectF& box) const {
    const auto [x, y, unit] = gunScale(qRound(box.width()), qRound(box.height()));
    const double turn = pose.side == kRightSide ? -pose.turn : pose.turn;
    painter.save();
    painter.translate(box.x() + kPivotX * x, box.y() + kPivotY * y);
    painter.rotate(degrees(turn) - 90);
    painter.translate(-pose.recoil / 10.0 * unit, 0);
    m_shapes.paint(painter, QStringLiteral("barrel"), squareAround({0, 0}, kBarrelGrid * unit),
                   QtShapes::Edges::Smooth);
    painter.restore();
}

void QtGunDrawings::paintSign(QPainter& painter, int side, const QRectF& box) const {
    const auto [x, y, unit] = gunScale(qRound(box.width()), qRound(box.height()));
    const QPointF middle{box.x() + kTurnSignX * x, box.y() + kTurnSignY * y};
    m_shapes.paint(painter, nameFor("turn", side), squareAround(middle, kTurnSignSize * unit),
                   QtShapes::Edges::Smooth);
}

}  // namespace skylob
