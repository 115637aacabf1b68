#include "battle/qt/picGameField.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QToolTip>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "base/qt/QtSpokenWidget.h"
#include "battle/light/FieldLayer.h"
#include "battle/qt/QtDragAim.h"
#include "battle/qt/QtGunDrawings.h"
#include "battle/qt/frmPlayGameLayout.h"
#include "look/qt/QtShapes.h"

namespace skylob {

namespace {

constexpr int kRoomRound = 12;  // what is to be seen; a hit's blast is nearly as wide

}  // namespace

picGameField::picGameField(FieldPicture& picture, FieldLayer& layer, const QtShapes& shapes,
                           QWidget* parent)
    : QWidget{parent}, m_picture{picture}, m_layer{layer}, m_shapes{shapes} {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSpokenRole(*this, QAccessible::Graphic);
    setAccessibleName(tr("Battlefield"));
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
    // Scaled, a pixel reaches into its neighbours.
    const int reach = isFitting() ? 0 : 1;
    for (const PixelRect& area : m_layer.update(m_picture.takeDirty()))
        changed += logical(area).toAlignedRect().adjusted(-reach, -reach, reach, reach);
    if (!changed.isEmpty()) repaint(changed);
}

void picGameField::paintEvent(QPaintEvent* event) {
    const QImage image = shown();
    if (image.isNull()) return;
    QPainter painter{this};
    if (image.size() != fittingSize()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF{rect()}, image);
        return;
    }
    const qreal ratio = devicePixelRatioF();
    const QList<QRect> all{event->region().begin(), event->region().end()};
    for (const QRect& part : event->rect() == m_stormStep ? m_stormParts : all) {
        const QRectF source{part.x() * ratio, part.y() * ratio, part.width() * ratio,
                            part.height() * ratio};
        painter.drawImage(QRectF{part}, image, source);
    }
    paintStorm(painter);
}

/// What the player sees, without a copy.
QImage picGameField::shown() const {
    return {reinterpret_cast<const uchar*>(m_layer.pixels()), m_layer.width(), m_layer.height(),
            QImage::Format_RGB32};
}

void picGameField::showStorm() {
    const QWindow* display = window()->windowHandle();
    if (!isVisible() || !display || !display->isExposed()) return;  // nobody sees it
    if (!m_layer.isOn() || !isFitting()) return;
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
    m_pressedAt = event->position();
}

void picGameField::mouseReleaseEvent(QMouseEvent* event) {
    const int pressed = std::exchange(m_pressedPiece, 0);
    const bool wasDragged =
        (event->position() - m_pressedAt).manhattanLength() > QtDragAim::kClickReach;
    if (pressed != 0 && !wasDragged && pieceAt(event->position()) == pressed)
        emit pieceClicked(pressed);
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

FieldPoint picGameField::fieldPoint(QPointF position) const {
    return {qRound(1 + position.x() * 999 / std::max(1, width() - 1)),
            qRound(1000 - position.y() * 999 / std::max(1, height() - 1))};
}

QPointF picGameField::widgetPoint(FieldPoint point) const {
    return {(point.x - 1) * (width() - 1) / 999.0, (1000 - point.y) * (height() - 1) / 999.0};
}

int picGameField::pieceAt(QPointF position) const {
    for (const int side : kSides)
        if (logical(m_picture.pieceArea(side)).contains(position)) return side;
    return 0;
}

}  // namespace skylob
