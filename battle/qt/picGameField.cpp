#include "battle/qt/picGameField.h"

#include <QHelpEvent>
#include <QImage>
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

std::optional<QPoint> picGameField::placeOfShell(const FieldScene& scene) const {
    const auto& [side, inTheAir, leavesTrail, path] = scene.flight;
    std::optional<FieldPoint> at;
    if (inTheAir && !path.empty()) at = path.back();
    if (scene.blast) at = scene.blast->at;
    if (!at) return std::nullopt;
    const QPointF place = widgetPoint(*at);
    return QPoint{qRound(std::clamp(place.x(), 0.0, width() - 1.0)),
                  qRound(std::clamp(place.y(), 0.0, height() - 1.0))};
}

QRect picGameField::onDesktop(const PixelRect& area) const {
    const QRect place = logical(area).toAlignedRect().marginsAdded(
        {kRoomRound, kRoomRound, kRoomRound, kRoomRound});
    return place.translated(mapToGlobal(QPoint{0, 0}));
}

void picGameField::showChanges() {
    m_parts.clear();
    QRegion changed;
    for (const PixelRect& area : m_layer.update(m_picture.takeDirty())) {
        m_parts.append(touched(area));
        changed += m_parts.last();
    }
    if (!changed.isEmpty()) repaintParts(changed);
}

/// What is to be painted anew where an area has changed.
QRect picGameField::touched(const PixelRect& area) const {
    // Scaled, a pixel reaches into its neighbours.
    const int reach = isFitting() ? 0 : 1;
    return logical(area).toAlignedRect().adjusted(-reach, -reach, reach, reach);
}

/// Repaints a region that holds all parts, of which these alone are painted: the region is made of
/// more rectangles than that.
void picGameField::repaintParts(const QRegion& region) {
    const QScopedValueRollback step{m_step, region};
    repaint(region);
}

void picGameField::paintEvent(QPaintEvent* event) {
    if (m_picture.width() == 0 || m_picture.height() == 0) return;
    QPainter painter{this};
    if (isFitting())
        paintFitting(painter, event->region());
    else
        paintScaled(painter);
    for (const auto& [area, colour] : m_storm.lights())
        painter.fillRect(area.x, area.y, area.width, area.height, QColor::fromRgba(colour));
}

/// Leaves the painter with the picture's pixels as its units, each of them one of the display's.
void picGameField::paintFitting(QPainter& painter, const QRegion& region) {
    const QTransform toDevice = painter.deviceTransform();
    const QPoint corner = toDevice.map(QPointF{0, 0}).toPoint();
    painter.setTransform(QTransform::fromTranslate(corner.x(), corner.y()) * toDevice.inverted());

    const QTransform toPixels = QTransform::fromScale(devicePixelRatioF(), devicePixelRatioF());
    const QList<QRect> all{region.begin(), region.end()};
    for (const QRect& part : region == m_step ? m_parts : all) {
        const QRect pixels = toPixels.mapRect(QRectF{part}).toAlignedRect();
        drawLayer(painter, {pixels.x(), pixels.y(), pixels.width(), pixels.height()});
    }
    // Where corners lie between two pixels, one more may be the field's than the picture has.
    const int width = m_picture.width(), height = m_picture.height();
    painter.fillRect(width, 0, 1, height, Qt::black);
    painter.fillRect(0, height, width + 1, 1, Qt::black);
}

/// Leaves the painter with the picture's pixels as its units.
void picGameField::paintScaled(QPainter& painter) {
    const PixelRect whole{0, 0, m_picture.width(), m_picture.height()};
    QImage image{whole.width, whole.height, QImage::Format_RGB32};
    QPainter copier{&image};
    drawLayer(copier, whole);
    copier.end();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF{rect()}, image);
    const QRectF pixel = logical({0, 0, 1, 1});
    painter.scale(pixel.width(), pixel.height());
}

/// Draws what the player sees in an area of the picture's pixels, which are the painter's units.
void picGameField::drawLayer(QPainter& painter, const PixelRect& area) {
    m_layer.paint(area, [&painter](const FieldLayer::Part& part) {
        painter.drawImage(
            part.area.x, part.area.y,
            QImage{reinterpret_cast<const uchar*>(part.pixels), part.area.width, part.area.height,
                   part.stride * qsizetype{sizeof *part.pixels}, QImage::Format_RGB32});
    });
}

void picGameField::keepStill() {
    m_layer.whole();
}

void picGameField::showStorm() {
    const QWindow* display = window()->windowHandle();
    if (!isVisible() || !display || !display->isExposed()) return;  // nobody sees it
    if (!m_layer.isOn()) return;
    m_storm.advance(m_layer);
    repaintStorm();
}

void picGameField::endStorm() {
    m_storm.end();
    repaintStorm();
}

void picGameField::repaintStorm() {
    m_parts.clear();
    QRect around;
    for (const PixelRect& area : m_storm.changes()) {
        m_parts.append(touched(area));
        around |= m_parts.last();
    }
    // Clipping to a hundred small rectangles would cost twice as much as sending one large one.
    repaintParts(around);
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
