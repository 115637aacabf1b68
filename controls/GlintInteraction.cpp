#include "controls/GlintInteraction.h"

#include "controls/GlintLayout.h"

namespace skylob {

namespace {

constexpr std::int16_t kSpace = 32;

}  // namespace

GlintInteraction::GlintInteraction(GlintState& button, GlintSurface& surface, GlintPointer& pointer,
                                   GlintEvents& events)
    : m_button{button}, m_surface{surface}, m_pointer{pointer}, m_events{events} {
}

void GlintInteraction::mouseDown(const GlintMouse& mouse) {
    m_events.raiseMouseDown(mouse);
    m_button.LastButton = static_cast<std::uint8_t>(mouse.button);
    if (mouse.button != kMouseRight) redraw(kStatePressed, false);
}

void GlintInteraction::mouseUp(const GlintMouse& mouse) {
    m_events.raiseMouseUp(mouse);
    if (mouse.button != kMouseRight) redraw(kStateUp, false);
}

void GlintInteraction::mouseMove(const GlintMouse& mouse) {
    m_events.raiseMouseMove(mouse);
    if (mouse.button >= kMouseRight) return;
    if (!m_pointer.IsPointerInside()) {
        redraw(kStateUp, false);
        return;
    }
    // Quirk "MouseIn at every move": the timer does not run while the left button is held.
    if (!m_pointer.isOverTimerRunning()) m_events.raiseMouseIn();
    if (mouse.button == 0 && !m_button.IsOver) {
        m_pointer.runOverTimer(true);
        m_button.IsOver = true;
        redraw(kStateUp, true);
        m_events.raiseMouseOver();
    } else if (mouse.button == kMouseLeft) {
        // Pressed, but in the colours of hovering. Quirk "click that forgets the hover": when the
        // move has been drawn the button is not "over" any more.
        m_button.IsOver = true;
        redraw(kStatePressed, false);
        m_button.IsOver = false;
    }
}

void GlintInteraction::overTimerTick() {
    if (m_pointer.IsPointerInside()) return;
    m_pointer.runOverTimer(false);
    m_button.IsOver = false;
    redraw(kStateUp, true);
    m_events.raiseMouseOut();
}

void GlintInteraction::click() {
    if (m_button.LastButton != kMouseLeft || !m_button.Enabled) return;
    toggle();
    redraw(kStateUp, true);
    m_events.raiseClick();
}

void GlintInteraction::doubleClick() {
    if (m_button.LastButton != kMouseLeft) return;
    mouseDown({kMouseLeft, 0, 0, 0});
    m_pointer.captureMouse();
}

void GlintInteraction::accessKey() {
    m_button.LastButton = kMouseLeft;
    click();
}

void GlintInteraction::letGo() {
    if (m_button.currentState == kStatePressed) redraw(kStateUp, false);
}

void GlintInteraction::keyDown(std::int16_t keyCode, std::int16_t shift) {
    m_events.raiseKeyDown(keyCode, shift);
    m_button.LastKeyDown = static_cast<std::uint8_t>(keyCode);
    if (keyCode == kSpace) redraw(kStatePressed, false);
}

void GlintInteraction::keyUp(std::int16_t keyCode, std::int16_t shift) {
    m_events.raiseKeyUp(keyCode, shift);
    if (keyCode != kSpace || m_button.LastKeyDown != kSpace) return;
    // Quirk "space on a disabled button": only a click asks whether it is enabled.
    toggle();
    redraw(kStateUp, false);
    m_events.raiseClick();
}

void GlintInteraction::keyPress(std::int16_t keyAscii) {
    m_events.raiseKeyPress(keyAscii);
}

void GlintInteraction::gotFocus() {
    m_button.HasFocus = true;
    redraw(m_button.currentState, true);
}

void GlintInteraction::lostFocus() {
    // Quirk "space that Tab takes away": it is drawn again as it was, pressed.
    m_button.HasFocus = false;
    redraw(m_button.currentState, true);
}

void GlintInteraction::ambientChanged() {
    m_button.palette = RecalcColours(m_button, m_surface.containerColours());
    redraw(m_button.currentState, true);
}

void GlintInteraction::initialise() {
    m_button.IsShown = true;
}

void GlintInteraction::show() {
    if (m_button.ButtonType == kStyleGlass) captureBackground(m_button, m_surface);
    m_button.IsShown = true;
    m_button.palette = RecalcColours(m_button, m_surface.containerColours());
    redraw(kStateUp, true);
}

void GlintInteraction::hide() {
    m_button.IsShown = false;
}

void GlintInteraction::redraw(int state, bool flag) {
    Redraw(m_button, m_surface, state, flag);
}

void GlintInteraction::toggle() {
    // Quirk "unmarked toggle": only the host's setting is a change of the form.
    if (m_button.CheckBoxBehaviour) m_button.Value = !m_button.Value;
}

}  // namespace skylob
