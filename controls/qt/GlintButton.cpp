#include "controls/qt/GlintButton.h"

#include <QKeyEvent>
#include <QPainter>
#include <QShortcutEvent>
#include <algorithm>

#include "controls/GlintLayout.h"
#include "controls/qt/GlintButtonInput.h"
#include "controls/qt/GlintPainter.h"
#include "look/qt/QtLook.h"

namespace skylob {

GlintButton::GlintButton(const QString& name, const QtShapes& shapes, QWidget* parent)
    : QWidget{parent},
      m_pictures{shapes},
      m_host{*this, m_state, m_pictures},
      m_design{m_state, m_host},
      m_interaction{m_state, m_host, m_host, m_host} {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    connect(&m_host.OverTimer, &QTimer::timeout, this, [this] { m_interaction.overTimerTick(); });
    m_interaction.initialise();
}

QString GlintButton::plainCaption() const {
    const QString marker{QChar{1}};
    QString text = QString::fromStdString(m_state.Caption);
    text.replace(QLatin1String{"&&"}, marker).remove(QLatin1Char{'&'});
    return text.replace(marker, QLatin1String{"&"}).simplified();
}

QSize GlintButton::sizeHint() const {
    const GlintRect caption = m_host.measureCaption(m_state.Caption, {0, 0, 1000, 1000});
    return {caption.width() + m_state.picture.width + 24,
            std::max(caption.height(), m_state.picture.height) + 24};
}

bool GlintButton::event(QEvent* event) {
    if (event->type() == QEvent::Shortcut) {
        if (m_host.isAccessKey(*static_cast<QShortcutEvent*>(event))) press();
        return true;
    }
    if (event->type() == QEvent::WindowBlocked) {
        // The release that ends a press now goes to the window above.
        m_host.forgetPress();
        m_interaction.letGo();
    }
    return QWidget::event(event);
}

void GlintButton::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    const QTransform toDevice = painter.deviceTransform();
    const GlintCanvas canvas{.button = m_state,
                             .state = m_host.drawnState(),
                             .over = m_host.isDrawnOver(),
                             .enabled = m_state.Enabled && isEnabled(),
                             .font = m_host.captionFont(),
                             .picture = shownPicture(toDevice.m11()),
                             .backdrop = m_host.backdrop(),
                             .ratio = toDevice.m11(),
                             .corner = toDevice.map(QPointF{0, 0})};
    // In device pixels, because the corner may lie between two of them.
    painter.setTransform(toDevice.inverted());
    painter.drawImage(canvas.corner.toPoint(), m_drawing.of(canvas));
}

void GlintButton::resizeEvent(QResizeEvent*) {
    skylob::resize(m_state, m_host);
}

void GlintButton::showEvent(QShowEvent*) {
    m_interaction.show();
}

void GlintButton::hideEvent(QHideEvent*) {
    m_host.forgetPress();
    m_interaction.hide();
}

void GlintButton::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        m_interaction.ambientChanged();
    if (event->type() == QEvent::EnabledChange) m_host.forgetPress();
}

void GlintButton::enterEvent(QEnterEvent*) {
    m_host.setEntered(true);
}

void GlintButton::leaveEvent(QEvent*) {
    m_host.setEntered(false);
}

void GlintButton::mousePressEvent(QMouseEvent* event) {
    if (!isGlintButton(event->button())) return;
    m_host.press(event->button());
    m_interaction.mouseDown(glintMouse(*event, glintButton(event->button())));
}

void GlintButton::mouseReleaseEvent(QMouseEvent* event) {
    if (!isGlintButton(event->button())) return;
    const bool clicked = m_host.release(event->button()) && rect().contains(event->pos());
    m_interaction.mouseUp(glintMouse(*event, glintButton(event->button())));
    if (clicked) m_interaction.click();
}

void GlintButton::mouseMoveEvent(QMouseEvent* event) {
    // No leave event comes while a button is held.
    m_host.setEntered(rect().contains(event->pos()));
    m_interaction.mouseMove(glintMouse(*event, glintButtons(event->buttons())));
}

void GlintButton::mouseDoubleClickEvent(QMouseEvent* event) {
    if (isGlintButton(event->button())) m_interaction.doubleClick();
}

void GlintButton::keyPressEvent(QKeyEvent* event) {
    m_interaction.keyDown(glintKeyCode(event->key()), glintShift(event->modifiers()));
    if (!event->text().isEmpty())
        m_interaction.keyPress(static_cast<std::int16_t>(event->text().at(0).unicode()));
    event->setAccepted(event->key() == Qt::Key_Space);
}

void GlintButton::keyReleaseEvent(QKeyEvent* event) {
    // A key that is held down goes down again and again, but up only once.
    if (!event->isAutoRepeat())
        m_interaction.keyUp(glintKeyCode(event->key()), glintShift(event->modifiers()));
    event->setAccepted(event->key() == Qt::Key_Space);
}

void GlintButton::focusInEvent(QFocusEvent*) {
    m_interaction.gotFocus();
}

void GlintButton::focusOutEvent(QFocusEvent*) {
    m_interaction.lostFocus();
}

QImage GlintButton::shownPicture(qreal ratio) {
    const bool over = m_host.isDrawnOver() && !m_state.PictureOver.empty();
    return m_pictures.at(over ? m_state.PictureOver : m_state.PictureNormal, ratio);
}

}  // namespace skylob
