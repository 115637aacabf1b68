#include "battle/qt/picGameField.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <utility>

#include "battle/qt/frmPlayGameLayout.h"
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

QSize picGameField::fittingSize() const {
    const qreal ratio = devicePixelRatioF();
    return {qRound(width() * ratio), qRound(height() * ratio)};
}

bool picGameField::isFitting() const {
    return fittingSize() == QSize{m_picture.width(), m_picture.height()};
}

bool picGameField::fitPicture(const QSize& smallest) {
    if (isFitting()) return false;
    const QSize pixels = fittingSize();
    m_picture.resize(pixels.width(), pixels.height(),
                     dotScaleOf(smallest, size(), devicePixelRatioF()));
    const auto [pieceWidth, pieceHeight] = m_picture.pieceSize();
    for (const int side : kSides) {
        const QString name = QStringLiteral("piece%1").arg(side);
        m_picture.setPieceImage(side, pieceImage(m_shapes.render(name, {pieceWidth, pieceHeight},
                                                                 QtShapes::Edges::Smooth)));
    }
    return true;
}

void picGameField::showChanges() {
    PixelRect changed = m_picture.takeDirty();
    if (changed.isEmpty()) return;
    // Scaled, a pixel reaches into its neighbours.
    if (!isFitting())
        changed = {changed.x - 1, changed.y - 1, changed.width + 2, changed.height + 2};
    repaint(logical(changed).toAlignedRect());
}

void picGameField::paintEvent(QPaintEvent* event) {
    if (m_picture.width() == 0) return;
    QImage image{reinterpret_cast<const uchar*>(m_picture.screenPixels()), m_picture.width(),
                 m_picture.height(), QImage::Format_RGB32};
    QPainter painter{this};
    if (!isFitting()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF{rect()}, image);
        return;
    }
    const qreal ratio = devicePixelRatioF();
    const QRectF source{event->rect().x() * ratio, event->rect().y() * ratio,
                        event->rect().width() * ratio, event->rect().height() * ratio};
    painter.drawImage(QRectF{event->rect()}, image, source);
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
    const bool fits = isFitting();
    const qreal x = fits ? devicePixelRatioF() : static_cast<qreal>(m_picture.width()) / width();
    const qreal y = fits ? devicePixelRatioF() : static_cast<qreal>(m_picture.height()) / height();
    return {area.x / x, area.y / y, area.width / x, area.height / y};
}

int picGameField::pieceAt(QPointF position) const {
    for (const int side : kSides)
        if (logical(m_picture.pieceArea(side)).contains(position)) return side;
    return 0;
}

}  // namespace skylob
