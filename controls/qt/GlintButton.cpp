#include "controls/qt/GlintButton.h"

#include <QAccessible>
#include <QApplication>
#include <QCursor>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <QShortcutEvent>
#include <algorithm>

#include "base/qt/QtText.h"
#include "controls/GlintLayout.h"
#include "controls/qt/GlintButtonInput.h"
#include "controls/qt/GlintButtonPictures.h"
#include "controls/qt/GlintPainter.h"
#include "look/qt/QtLook.h"

namespace skylob {

namespace {

constexpr int kOverInterval = 3;  // milliseconds

/// False where the window system keeps the pointer's place on the screen to itself.
bool isPointerPlaceKnown() {
    return !QGuiApplication::platformName().startsWith(QLatin1String{"wayland"});
}

}  // namespace

GlintButton::GlintButton(const QString& name, const QtShapes& shapes, QWidget* parent)
    : QWidget{parent},
      m_pictures{shapes},
      m_design{m_state, *this},
      m_interaction{m_state, *this, *this, *this} {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    OverTimer.setInterval(kOverInterval);
    OverTimer.setTimerType(Qt::PreciseTimer);
    connect(&OverTimer, &QTimer::timeout, this, [this] { m_interaction.overTimerTick(); });
    m_interaction.initialise();
}

GlintButton::~GlintButton() = default;

QString GlintButton::plainCaption() const {
    const QString marker{QChar{1}};
    QString text = QString::fromStdString(m_state.Caption);
    text.replace(QLatin1String{"&&"}, marker).remove(QLatin1Char{'&'});
    return text.replace(marker, QLatin1String{"&"}).simplified();
}

QSize GlintButton::sizeHint() const {
    const GlintRect caption = measureCaption(m_state.Caption, {0, 0, 1000, 1000});
    return {caption.width() + m_state.picture.width + 24,
            std::max(caption.height(), m_state.picture.height) + 24};
}

bool GlintButton::event(QEvent* event) {
    if (event->type() == QEvent::Shortcut) {
        const auto* shortcut = static_cast<QShortcutEvent*>(event);
        if (shortcut->shortcutId() == m_shortcut && !shortcut->isAmbiguous()) press();
        return true;
    }
    if (event->type() == QEvent::WindowBlocked) {
        // The release that ends a press now goes to the window above.
        m_pressedButton = Qt::NoButton;
        m_interaction.letGo();
    }
    return QWidget::event(event);
}

void GlintButton::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    const QTransform toDevice = painter.deviceTransform();
    const GlintCanvas canvas{.button = m_state,
                             .state = m_drawnState,
                             .over = m_drawnOver,
                             .enabled = m_state.Enabled && isEnabled(),
                             .font = qFont(),
                             .picture = shownPicture(toDevice.m11()),
                             .backdrop = m_backdrop,
                             .ratio = toDevice.m11(),
                             .corner = toDevice.map(QPointF{0, 0})};
    // In device pixels, because the corner may lie between two of them.
    painter.setTransform(toDevice.inverted());
    painter.drawImage(canvas.corner.toPoint(), paintGlintButton(canvas));
}

void GlintButton::resizeEvent(QResizeEvent*) {
    skylob::resize(m_state, *this);
}

void GlintButton::showEvent(QShowEvent*) {
    m_interaction.show();
}

void GlintButton::hideEvent(QHideEvent*) {
    m_pressedButton = Qt::NoButton;
    m_interaction.hide();
}

void GlintButton::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        m_interaction.ambientChanged();
    if (event->type() == QEvent::EnabledChange) m_pressedButton = Qt::NoButton;
}

void GlintButton::enterEvent(QEnterEvent*) {
    m_entered = true;
}

void GlintButton::leaveEvent(QEvent*) {
    m_entered = false;
}

void GlintButton::mousePressEvent(QMouseEvent* event) {
    if (!isGlintButton(event->button())) return;
    m_pressedButton = event->button();
    m_interaction.mouseDown(glintMouse(*event, glintButton(event->button())));
}

void GlintButton::mouseReleaseEvent(QMouseEvent* event) {
    if (!isGlintButton(event->button())) return;
    const bool clicked = event->button() == m_pressedButton && rect().contains(event->pos());
    if (event->button() == m_pressedButton) m_pressedButton = Qt::NoButton;
    m_interaction.mouseUp(glintMouse(*event, glintButton(event->button())));
    if (clicked) m_interaction.click();
}

void GlintButton::mouseMoveEvent(QMouseEvent* event) {
    m_entered = rect().contains(event->pos());  // no leave event comes while a button is held
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

void GlintButton::paint(int state, bool) {
    // Taken down now: while it is dragged over, a button is "over" only for the one drawing.
    m_drawnState = state;
    m_drawnOver = m_state.IsOver;
    update();
    tellScreenReaders();
}

void GlintButton::tellScreenReaders() {
    if (m_state.Value == m_toldValue) return;
    m_toldValue = m_state.Value;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event{this, changed};
    QAccessible::updateAccessibility(&event);
}

void GlintButton::propertyChanged(std::string_view key) {
    emit PropertyChanged(toQt(key));
}

GlintFont GlintButton::ambientFont() const {
    const QFont font = parentWidget() ? parentWidget()->font() : QApplication::font();
    return {.name = font.family().toStdString(),
            .size = static_cast<float>(QFontInfo{font}.pixelSize()),
            .bold = font.bold(),
            .italic = font.italic(),
            .underline = font.underline()};
}

ContainerColours GlintButton::containerColours() const {
    const QPalette palette = parentWidget() ? parentWidget()->palette() : QApplication::palette();
    return {Colour::fromRgb(palette.color(QPalette::Window).rgb()),
            Colour::fromRgb(palette.color(QPalette::WindowText).rgb())};
}

void GlintButton::setFont(const GlintFont& font) {
    m_font = font;
}

QFont GlintButton::qFont() const {
    QFont font;
    font.setFamilies(QStringList{QString::fromStdString(m_font.name)} + fontFamilies());
    font.setPixelSize(std::max(1, qRound(m_font.size)));
    font.setWeight(m_font.bold ? QFont::DemiBold : QFont::Normal);
    font.setItalic(m_font.italic);
    font.setUnderline(m_font.underline);
    return font;
}

void GlintButton::setMousePointer(std::int16_t shape) {
    m_pointerShape = shape;
    updateMousePointer();
}

void GlintButton::setMouseIcon(const PictureReference& picture) {
    m_mouseIcon = picture;
    updateMousePointer();
}

void GlintButton::updateMousePointer() {
    if (m_pointerShape == 0) {
        unsetCursor();  // whatever the form shows
        return;
    }
    QImage icon = m_pictures.at(m_mouseIcon, devicePixelRatioF());
    icon.setDevicePixelRatio(devicePixelRatioF());
    setCursor(glintCursor(m_pointerShape, icon));
}

void GlintButton::setAccessKeyFrom(const std::string& caption) {
    if (m_shortcut != 0) releaseShortcut(m_shortcut);
    const auto key = QKeySequence::mnemonic(QString::fromStdString(caption));
    m_shortcut = key.isEmpty() ? 0 : grabShortcut(key);
    if (m_shortcut != 0) setShortcutAutoRepeat(m_shortcut, false);
    QAccessibleEvent renamed{this, QAccessible::NameChanged};
    QAccessible::updateAccessibility(&renamed);
}

GlintSize GlintButton::measurePicture(const PictureReference& picture) const {
    const QSize size = m_pictures.size(picture);
    return {size.width(), size.height()};
}

GlintRect GlintButton::measureCaption(const std::string& caption, const GlintRect& bounds) const {
    if (caption.empty()) return {bounds.left, bounds.top, bounds.left, bounds.top};
    const QRect size = QFontMetrics{qFont()}.boundingRect(
        QRect{0, 0, std::max(1, bounds.width()), std::max(1, bounds.height())},
        Qt::TextWordWrap | Qt::TextShowMnemonic, QString::fromStdString(caption));
    return {bounds.left, bounds.top, bounds.left + size.width(), bounds.top + size.height()};
}

void GlintButton::setRegion(const std::vector<GlintPixel>& removed) {
    if (removed.empty()) {
        clearMask();
        return;
    }
    QRegion region{rect()};
    for (const GlintPixel& pixel : removed) region -= QRect{pixel.x, pixel.y, 1, 1};
    setMask(region);
}

void GlintButton::captureBackground() {
    if (!parentWidget()) return;
    const qreal ratio = devicePixelRatioF();
    m_backdrop = QImage{size() * ratio, QImage::Format_RGB32};
    m_backdrop.setDevicePixelRatio(ratio);
    m_backdrop.fill(Qt::black);
    parentWidget()->render(&m_backdrop, {}, geometry(), DrawWindowBackground);
    m_backdrop.setDevicePixelRatio(1);
}

bool GlintButton::IsPointerInside() const {
    return isPointerPlaceKnown() ? QApplication::widgetAt(QCursor::pos()) == this
                                 : m_entered && isVisible();
}

void GlintButton::runOverTimer(bool run) {
    if (run)
        OverTimer.start();
    else
        OverTimer.stop();
}

QImage GlintButton::shownPicture(qreal ratio) const {
    const bool over = m_drawnOver && !m_state.PictureOver.empty();
    return m_pictures.at(over ? m_state.PictureOver : m_state.PictureNormal, ratio);
}

}  // namespace skylob
