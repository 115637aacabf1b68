#pragma once

#include <cstdint>

#include "controls/GlintSurface.h"

namespace skylob {

/// A mouse event as the host reports it. `button` is the button pressed or released, on a move
/// the sum of those held: kMouseLeft and so on. `shift` is the sum of kHeldShift and so on. x and
/// y are pixels from the button's corner.
struct GlintMouse {
    std::int16_t button = 0, shift = 0;
    float x = 0, y = 0;

    bool operator==(const GlintMouse&) const = default;
};

/// The ten events that a button raises for its form.
class GlintEvents {
  public:
    virtual ~GlintEvents() = default;

    virtual void raiseClick() = 0;
    virtual void raiseMouseDown(const GlintMouse& mouse) = 0;
    virtual void raiseMouseMove(const GlintMouse& mouse) = 0;
    virtual void raiseMouseUp(const GlintMouse& mouse) = 0;
    virtual void raiseKeyPress(std::int16_t keyAscii) = 0;
    virtual void raiseKeyDown(std::int16_t keyCode, std::int16_t shift) = 0;
    virtual void raiseKeyUp(std::int16_t keyCode, std::int16_t shift) = 0;
    virtual void raiseMouseOver() = 0;
    virtual void raiseMouseIn() = 0;
    virtual void raiseMouseOut() = 0;
};

/// The pointer and the hover timer, as the host knows them.
class GlintPointer {
  public:
    virtual ~GlintPointer() = default;

    /// True exactly when the window under the pointer is the button's own.
    virtual bool IsPointerInside() const = 0;
    /// OverTimer ticks every 3 ms while it runs; it does not run at first.
    virtual bool isOverTimerRunning() const = 0;
    virtual void runOverTimer(bool run) = 0;
    /// The next mouse-up is the button's, wherever it happens.
    virtual void captureMouse() = 0;
};

/// How a button reacts to mouse, keyboard, focus and host: each function is one thing that the
/// host reports.
class GlintInteraction {
  public:
    /// All four must outlive this object.
    GlintInteraction(GlintState& button, GlintSurface& surface, GlintPointer& pointer,
                     GlintEvents& events);

    void mouseDown(const GlintMouse& mouse);
    void mouseUp(const GlintMouse& mouse);
    void mouseMove(const GlintMouse& mouse);
    void overTimerTick();
    /// The host's own click: a mouse button went down and up on the surface, or an access key.
    void click();
    void doubleClick();
    void accessKey();
    /// A window above takes what ends a press: the button is drawn up and nothing is raised.
    void letGo();

    void keyDown(std::int16_t keyCode, std::int16_t shift);
    void keyUp(std::int16_t keyCode, std::int16_t shift);
    void keyPress(std::int16_t keyAscii);
    void gotFocus();
    void lostFocus();

    /// The host's colours or font have changed.
    void ambientChanged();
    void initialise();
    void show();
    /// The button is hidden or ends.
    void hide();

  private:
    void redraw(int state, bool flag);
    void toggle();

    GlintState& m_button;
    GlintSurface& m_surface;
    GlintPointer& m_pointer;
    GlintEvents& m_events;
};

}  // namespace skylob
