#include "battle/qt/picGameField.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "battle/FieldLayer.h"
#include "look/qt/QtShapes.h"

namespace skylob {

namespace {

constexpr int kRoomRound = 12;  // what is to be seen; a hit's blast is nearly as wide

FieldPicture::PieceImage pieceImage(const QImage& drawing) {
    FieldPicture::PieceImage image{drawing.width(), drawing.height(), {}};
    for (int y = 0; y < drawing.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(drawing.constScanLine(y));
        image.pixels.insert(image.pixels.end(), line, line + drawing.width());
    }
    return image;
}

}  // namespace

picGameField::picGameField(FieldPicture& picture, FieldLayer& layer, const QtShapes& shapes,
                           QWidget* parent)
    : QWidget{parent}, m_picture{picture}, m_layer{layer}, m_shapes{shapes} {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

bool picGameField::fitPicture() {
    const qreal ratio = devicePixelRatioF();
    const QSize pixels{qRound(width() * ratio), qRound(height() * ratio)};
    if (pixels == QSize{m_picture.width(), m_picture.height()}) return false;
    m_picture.resize(pixels.width(), pixels.height(), std::max(1, qRound(ratio)));
    const auto [pieceWidth, pieceHeight] = m_picture.pieceSize();
    for (const int side : kSides) {
        const QString name = QStringLiteral("piece%1").arg(side);
        m_picture.setPieceImage(side, pieceImage(m_shapes.render(name, {pieceWidth, pieceHeight},
                                                                 QtShapes::Edges::Smooth)));
    }
    return true;
}

QRect picGameField::placeOfPiece(int side) const {
    return onDesktop(m_picture.pieceArea(side));
}

QRect picGameField::placeOf(FieldPoint point) const {
    return onDesktop(m_picture.dotArea(point.x, point.y));
}

QRect picGameField::onDesktop(const PixelRect& area) const {
    const QRect place = logical(area).toAlignedRect().marginsAdded(
        {kRoomRound, kRoomRound, kRoomRound, kRoomRound});
    return place.translated(mapToGlobal(QPoint{0, 0}));
}

void picGameField::showChanges() {
    QRegion changed;
    for (const PixelRect& area : m_layer.update(m_picture.takeDirty()))
        changed += logical(area).toAlignedRect();
    if (!changed.isEmpty()) repaint(changed);
}

void picGameField::paintEvent(QPaintEvent* event) {
    const QImage image = shown();
    if (image.isNull()) return;
    const qreal ratio = devicePixelRatioF();
    QPainter painter{this};
    for (const QRect& part : event->region()) {
        const QRectF source{part.x() * ratio, part.y() * ratio, part.width() * ratio,
                            part.height() * ratio};
        painter.drawImage(QRectF{part}, image, source);
    }
}

/// What the player sees, without a copy.
QImage picGameField::shown() const {
    return {reinterpret_cast<const uchar*>(m_layer.pixels()), m_layer.width(), m_layer.height(),
            QImage::Format_RGB32};
}

void picGameField::mousePressEvent(QMouseEvent* event) {
    m_pressedPiece = event->button() == Qt::LeftButton ? pieceAt(event->position()) : 0;
}

void picGameField::mouseReleaseEvent(QMouseEvent* event) {
    const int pressed = std::exchange(m_pressedPiece, 0);
    if (pressed != 0 && pieceAt(event->position()) == pressed) emit pieceClicked(pressed);
}

bool picGameField::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    if (const int side = pieceAt(help->pos()); side != 0) {
        // Quirk "blank at the ends": tool tips have one on either side.
        QToolTip::showText(help->globalPos(), tr(" Click here to shoot "), this,
                           logical(m_picture.pieceArea(side)).toAlignedRect());
    } else {
        QToolTip::hideText();
    }
    return true;
}

QRectF picGameField::logical(const PixelRect& area) const {
    const qreal ratio = devicePixelRatioF();
    return {area.x / ratio, area.y / ratio, area.width / ratio, area.height / ratio};
}

int picGameField::pieceAt(QPointF position) const {
    for (const int side : kSides)
        if (logical(m_picture.pieceArea(side)).contains(position)) return side;
    return 0;
}

}  // namespace skylob
