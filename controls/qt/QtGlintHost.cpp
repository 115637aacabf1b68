#include "controls/qt/QtGlintHost.h"

#include <QAccessible>
#include <QApplication>
#include <QFontMetrics>
#include <QShortcutEvent>
#include <algorithm>

#include "base/qt/QtText.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/GlintButtonInput.h"
#include "controls/qt/GlintButtonPictures.h"
#include "look/qt/QtLook.h"

namespace skylob {

namespace {

constexpr int kOverInterval = 3;  // milliseconds

/// False where the window system keeps the pointer's place on the screen to itself.
bool isPointerPlaceKnown() {
    return !QGuiApplication::platformName().startsWith(QLatin1String{"wayland"});
}

}  // namespace

QtGlintHost::QtGlintHost(GlintButton& button, const GlintState& state, GlintPictures& pictures)
    : m_button{button}, m_state{state}, m_pictures{pictures} {
    OverTimer.setInterval(kOverInterval);
    OverTimer.setTimerType(Qt::PreciseTimer);
}

QFont QtGlintHost::captionFont() const {
    QFont font;
    font.setFamilies(QStringList{QString::fromStdString(m_font.name)} + fontFamilies());
    font.setPixelSize(std::max(1, qRound(m_font.size)));
    font.setWeight(m_font.bold ? QFont::DemiBold : QFont::Normal);
    font.setItalic(m_font.italic);
    font.setUnderline(m_font.underline);
    return font;
}

bool QtGlintHost::isAccessKey(const QShortcutEvent& shortcut) const {
    return shortcut.shortcutId() == m_shortcut && !shortcut.isAmbiguous();
}

bool QtGlintHost::release(Qt::MouseButton mouseButton) {
    if (mouseButton != m_pressedButton) return false;
    forgetPress();
    return true;
}

void QtGlintHost::paint(int state, bool) {
    m_drawnState = state;
    m_drawnOver = m_state.IsOver;
    m_button.update();
    tellScreenReaders();
}

void QtGlintHost::tellScreenReaders() {
    if (m_state.Value == m_toldValue) return;
    m_toldValue = m_state.Value;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event{&m_button, changed};
    QAccessible::updateAccessibility(&event);
}

void QtGlintHost::propertyChanged(std::string_view key) {
    emit m_button.PropertyChanged(toQt(key));
}

std::string QtGlintHost::displayName() const {
    return m_button.objectName().toStdString();
}

GlintFont QtGlintHost::ambientFont() const {
    const QWidget* form = m_button.parentWidget();
    const QFont font = form ? form->font() : QApplication::font();
    return {.name = font.family().toStdString(),
            // To ask what a size in points comes to would load the typeface, which nobody may show.
            .size = static_cast<float>(font.pixelSize() > 0 ? font.pixelSize()
                                                            : QFontInfo{font}.pixelSize()),
            .bold = font.bold(),
            .italic = font.italic(),
            .underline = font.underline()};
}

ContainerColours QtGlintHost::containerColours() const {
    const QWidget* form = m_button.parentWidget();
    const QPalette palette = form ? form->palette() : QApplication::palette();
    return {Colour::fromRgb(palette.color(QPalette::Window).rgb()),
            Colour::fromRgb(palette.color(QPalette::WindowText).rgb())};
}

void QtGlintHost::setEnabled(bool enabled) {
    m_button.setEnabled(enabled);
}

void QtGlintHost::setMousePointer(std::int16_t shape) {
    m_pointerShape = shape;
    updateMousePointer();
}

void QtGlintHost::setMouseIcon(const PictureReference& picture) {
    m_mouseIcon = picture;
    updateMousePointer();
}

void QtGlintHost::updateMousePointer() {
    if (m_pointerShape == kFormsShape) {
        m_button.unsetCursor();
        return;
    }
    const qreal ratio = m_button.devicePixelRatioF();
    QImage icon = m_pictures.at(m_mouseIcon, ratio);
    icon.setDevicePixelRatio(ratio);
    m_button.setCursor(glintCursor(m_pointerShape, icon));
}

void QtGlintHost::setAccessKeyFrom(const std::string& caption) {
    if (m_shortcut != 0) m_button.releaseShortcut(m_shortcut);
    const auto key = QKeySequence::mnemonic(QString::fromStdString(caption));
    m_shortcut = key.isEmpty() ? 0 : m_button.grabShortcut(key);
    if (m_shortcut != 0) m_button.setShortcutAutoRepeat(m_shortcut, false);
    QAccessibleEvent renamed{&m_button, QAccessible::NameChanged};
    QAccessible::updateAccessibility(&renamed);
}

GlintSize QtGlintHost::measurePicture(const PictureReference& picture) const {
    const QSize size = m_pictures.size(picture);
    return {size.width(), size.height()};
}

GlintRect QtGlintHost::measureCaption(const std::string& caption, const GlintRect& bounds) const {
    if (caption.empty()) return {bounds.left, bounds.top, bounds.left, bounds.top};
    const QRect size = QFontMetrics{captionFont()}.boundingRect(
        QRect{0, 0, std::max(1, bounds.width()), std::max(1, bounds.height())},
        Qt::TextWordWrap | Qt::TextShowMnemonic, QString::fromStdString(caption));
    return {bounds.left, bounds.top, bounds.left + size.width(), bounds.top + size.height()};
}

GlintWindowHandle QtGlintHost::windowHandle() const {
    // The toolkit gives widgets windows of their own only when asked for them; the form's other
    // widgets need none.
    m_button.setAttribute(Qt::WA_DontCreateNativeAncestors);
    return static_cast<GlintWindowHandle>(m_button.winId());
}

GlintSize QtGlintHost::clientSize() const {
    return {m_button.width(), m_button.height()};
}

void QtGlintHost::setRegion(const std::vector<GlintPixel>& removed) {
    if (removed.empty()) {
        m_button.clearMask();
        return;
    }
    QRegion region{m_button.rect()};
    for (const GlintPixel& pixel : removed) region -= QRect{pixel.x, pixel.y, 1, 1};
    m_button.setMask(region);
}

void QtGlintHost::captureBackground() {
    QWidget* form = m_button.parentWidget();
    if (!form) return;
    const qreal ratio = m_button.devicePixelRatioF();
    m_backdrop = QImage{m_button.size() * ratio, QImage::Format_RGB32};
    m_backdrop.setDevicePixelRatio(ratio);
    m_backdrop.fill(Qt::black);
    form->render(&m_backdrop, {}, m_button.geometry(), QWidget::DrawWindowBackground);
    m_backdrop.setDevicePixelRatio(1);
}

bool QtGlintHost::IsPointerInside() const {
    return isPointerPlaceKnown() ? m_pointer.widget() == &m_button
                                 : m_entered && m_button.isVisible();
}

void QtGlintHost::runOverTimer(bool run) {
    m_pointer.watch(run);
    if (run)
        OverTimer.start();
    else
        OverTimer.stop();
}

void QtGlintHost::raiseClick() {
    emit m_button.Click();
}

void QtGlintHost::raiseMouseDown(const GlintMouse& mouse) {
    emit m_button.MouseDown(mouse);
}

void QtGlintHost::raiseMouseMove(const GlintMouse& mouse) {
    emit m_button.MouseMove(mouse);
}

void QtGlintHost::raiseMouseUp(const GlintMouse& mouse) {
    emit m_button.MouseUp(mouse);
}

void QtGlintHost::raiseKeyPress(std::int16_t keyAscii) {
    emit m_button.KeyPress(keyAscii);
}

void QtGlintHost::raiseKeyDown(std::int16_t keyCode, std::int16_t shift) {
    emit m_button.KeyDown(keyCode, shift);
}

void QtGlintHost::raiseKeyUp(std::int16_t keyCode, std::int16_t shift) {
    emit m_button.KeyUp(keyCode, shift);
}

void QtGlintHost::raiseMouseOver() {
    emit m_button.MouseOver();
}

void QtGlintHost::raiseMouseIn() {
    emit m_button.MouseIn();
}

void QtGlintHost::raiseMouseOut() {
    emit m_button.MouseOut();
}

}  // namespace skylob
