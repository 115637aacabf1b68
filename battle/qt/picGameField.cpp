#include "battle/qt/picGameField.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QToolTip>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "look/qt/QtShapes.h"

namespace skylob {

namespace {

FieldPicture::PieceImage pieceImage(const QImage& drawing) {
    FieldPicture::PieceImage image{drawing.width(), drawing.height(), {}};
    for (int y = 0; y < drawing.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(drawing.constScanLine(y));
        image.pixels.insert(image.pixels.end(), line, line + drawing.width());
    }
    return image;
}

}  // namespace

picGameField::picGameField(FieldPicture& picture, const QtShapes& shapes, QWidget* parent)
    : QWidget{parent}, m_picture{picture}, m_shapes{shapes} {
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

void picGameField::showChanges() {
    const PixelRect changed = m_picture.takeDirty();
    if (!changed.isEmpty()) repaint(logical(changed).toAlignedRect());
}

void picGameField::paintEvent(QPaintEvent* event) {
    if (m_picture.width() == 0) return;
    QImage image{reinterpret_cast<const uchar*>(m_picture.screenPixels()), m_picture.width(),
                 m_picture.height(), QImage::Format_RGB32};
    const qreal ratio = devicePixelRatioF();
    QPainter painter{this};
    const QList<QRect> all{event->rect()};
    for (const QRect& part : event->rect() == m_stormStep ? m_stormParts : all)
        painter.drawImage(
            QRectF{part}, image,
            {part.x() * ratio, part.y() * ratio, part.width() * ratio, part.height() * ratio});
    paintStorm(painter);
}

void picGameField::showStorm() {
    const QWindow* display = window()->windowHandle();
    if (!isVisible() || !display || !display->isExposed()) return;  // nobody sees it
    m_storm.advance(m_picture);
    repaintStorm();
}

void picGameField::endStorm() {
    m_storm.end();
    repaintStorm();
}

void picGameField::repaintStorm() {
    m_stormParts.clear();
    QRect around;
    for (const PixelRect& area : m_storm.changes()) {
        m_stormParts.append(logical(area).toAlignedRect());
        around |= m_stormParts.last();
    }
    // Clipping to a hundred small rectangles would cost twice as much as sending one large one.
    const QScopedValueRollback step{m_stormStep, around};
    repaint(around);
}

void picGameField::paintStorm(QPainter& painter) const {
    painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    for (const auto& [area, pixel] : m_storm.lights())
        painter.fillRect(area.x, area.y, area.width, area.height, QColor::fromRgb(pixel));
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
