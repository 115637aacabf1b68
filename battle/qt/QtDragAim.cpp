#include "battle/qt/QtDragAim.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "battle/DragAim.h"
#include "battle/qt/picGameField.h"
#include "look/qt/QtColour.h"

namespace skylob {

namespace {

bool isEscape(const QEvent& event) {
    const bool isKey = event.type() == QEvent::ShortcutOverride || event.type() == QEvent::KeyPress;
    return isKey && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

}  // namespace

QtDragAim::QtDragAim(picGameField* field, Battle& battle)
    : QWidget{field}, m_field{field}, m_battle{battle} {
    setObjectName(QStringLiteral("dragAim"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    field->installEventFilter(this);
}

bool QtDragAim::eventFilter(QObject* watched, QEvent* event) {
    if (m_drag && isEscape(*event)) {
        // Before the window's shortcut, which would leave the set.
        if (event->type() == QEvent::KeyPress) drop();
        event->accept();
        return true;
    }
    return watched == m_field && fieldEvent(event);
}

bool QtDragAim::fieldEvent(QEvent* event) {
    const auto mouse = [event] { return static_cast<const QMouseEvent*>(event); };
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            m_swallowsRelease = false;
            if (mouse()->button() == Qt::LeftButton) press(mouse()->position());
            return false;
        case QEvent::MouseMove:
            // While input was held its release may have been lost.
            if (!mouse()->buttons().testFlag(Qt::LeftButton)) drop();
            if (m_drag) moveTo(mouse()->position());
            return m_drag.has_value();
        case QEvent::MouseButtonRelease:
            return mouse()->button() == Qt::LeftButton && release();
        case QEvent::Hide:
        case QEvent::EnabledChange:
        case QEvent::WindowBlocked:  // the release would be lost on the box above
            drop();
            return false;
        default:
            return false;
    }
}

bool QtDragAim::mayDrag() const {
    return m_battle.panel().commandsEnabled;
}

void QtDragAim::press(const QPointF& at) {
    if (!mayDrag() || m_field->pieceAt(at) != m_battle.state().Shooter) return;
    m_drag = Drag{at, at};
    qApp->installEventFilter(this);
}

void QtDragAim::moveTo(const QPointF& at) {
    m_drag->to = at;
    if ((at - m_drag->from).manhattanLength() > kClickReach) m_drag->hasBegun = true;
    if (!m_drag->hasBegun) return;
    m_field->keepStill();
    setGeometry(m_field->rect());
    show();
    update();
}

bool QtDragAim::release() {
    if (!m_drag) return std::exchange(m_swallowsRelease, false);
    const Drag drag = *m_drag;
    drop();
    m_swallowsRelease = false;
    if (drag.hasBegun && mayDrag()) aim(drag.to);
    return drag.hasBegun;
}

void QtDragAim::aim(const QPointF& at) {
    const int side = m_battle.state().Shooter;
    const auto [speed, angle] = aimByDragging(side, piece(), m_field->fieldPoint(at));
    m_battle.aims().setSpeed(side, speed);
    m_battle.aims().setAngle(side, angle);
}

void QtDragAim::drop() {
    if (!std::exchange(m_drag, std::nullopt)) return;
    m_swallowsRelease = true;
    qApp->removeEventFilter(this);
    hide();
}

FieldPoint QtDragAim::piece() const {
    const Battlefield& field = m_battle.state().field;
    const int side = m_battle.state().Shooter;
    return {field.PieceX[side], field.PieceY[side]};
}

void QtDragAim::paintEvent(QPaintEvent*) {
    if (!m_drag) return;
    const int side = m_battle.state().Shooter;
    const Aim aim = aimByDragging(side, piece(), m_field->fieldPoint(m_drag->to));
    const FieldPoint gun{piece().x, piece().y + kMuzzleHeight};
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen({toQColor(themeColour("night")), 4});
    painter.drawLine(m_field->widgetPoint(gun), m_drag->to);
    painter.setPen({toQColor(sideColour(side)), 2});
    painter.drawLine(m_field->widgetPoint(gun), m_drag->to);

    const QString figures = QStringLiteral("%1 / %2°").arg(aim.speed).arg(aim.angle);
    QRectF label = painter.fontMetrics().boundingRect(figures).adjusted(-6, -3, 6, 3);
    label.moveCenter(m_drag->to + QPointF{0, -20});
    label.moveLeft(std::clamp(label.left(), 0.0, width() - label.width()));
    label.moveTop(std::clamp(label.top(), 0.0, height() - label.height()));
    painter.setBrush(toQColor(themeColour("panel")));
    painter.drawRoundedRect(label, 4, 4);
    painter.setPen(toQColor(themeColour("text")));
    painter.drawText(label, Qt::AlignCenter, figures);
}

}  // namespace skylob
