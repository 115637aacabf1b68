#pragma once

#include <QFont>
#include <QImage>
#include <QTimer>

#include "controls/GlintInteraction.h"
#include "controls/qt/QtPointerPlace.h"

class QShortcutEvent;

namespace skylob {

class GlintButton;
class GlintPictures;

/// One button's window as the button's rules see it: they draw, measure and ask for the pointer
/// through it, and their events become the button's signals.
class QtGlintHost final : public GlintSurface, public GlintPointer, public GlintEvents {
  public:
    /// `state` is the button's own. All three must outlive the host.
    QtGlintHost(GlintButton& button, const GlintState& state, GlintPictures& pictures);

    /// What the rules have drawn last. A button that is dragged over is "over" only for the one
    /// drawing, so that this may differ from the state.
    int drawnState() const { return m_drawnState; }
    bool isDrawnOver() const { return m_drawnOver; }

    /// The caption's font.
    QFont captionFont() const;
    /// What lay behind the button when it was last captured, in device pixels; null before that.
    const QImage& backdrop() const { return m_backdrop; }

    /// Whether the shortcut is the caption's access key.
    bool isAccessKey(const QShortcutEvent& shortcut) const;

    /// The pointer has entered or left the widget; it is asked for only where the window system
    /// keeps the pointer's place to itself.
    void setEntered(bool entered) { m_entered = entered; }

    /// A press makes a click if the same mouse button comes up before it is forgotten.
    void press(Qt::MouseButton mouseButton) { m_pressedButton = mouseButton; }
    /// Whether this mouse button was pressed; then it is no longer.
    bool release(Qt::MouseButton mouseButton);
    void forgetPress() { m_pressedButton = Qt::NoButton; }

    QTimer OverTimer;  ///< its owner connects its ticks

    // The surface.
    void paint(int state, bool flag) override;
    void propertyChanged(std::string_view key) override;
    bool isUserMode() const override { return true; }
    std::string displayName() const override;
    GlintFont ambientFont() const override;
    ContainerColours containerColours() const override;
    GlintFont font() const override { return m_font; }
    void setFont(const GlintFont& font) override { m_font = font; }
    void setEnabled(bool enabled) override;
    std::int16_t mousePointer() const override { return m_pointerShape; }
    void setMousePointer(std::int16_t shape) override;
    PictureReference mouseIcon() const override { return m_mouseIcon; }
    void setMouseIcon(const PictureReference& picture) override;
    void setAccessKeyFrom(const std::string& caption) override;
    GlintSize measurePicture(const PictureReference& picture) const override;
    GlintRect measureCaption(const std::string& caption, const GlintRect& bounds) const override;
    GlintSize clientSize() const override;
    void setRegion(const std::vector<GlintPixel>& removed) override;
    void captureBackground() override;

    // The pointer.
    bool IsPointerInside() const override;
    bool isOverTimerRunning() const override { return OverTimer.isActive(); }
    void runOverTimer(bool run) override;
    void captureMouse() override { press(Qt::LeftButton); }

    // The events.
    void raiseClick() override;
    void raiseMouseDown(const GlintMouse& mouse) override;
    void raiseMouseMove(const GlintMouse& mouse) override;
    void raiseMouseUp(const GlintMouse& mouse) override;
    void raiseKeyPress(std::int16_t keyAscii) override;
    void raiseKeyDown(std::int16_t keyCode, std::int16_t shift) override;
    void raiseKeyUp(std::int16_t keyCode, std::int16_t shift) override;
    void raiseMouseOver() override;
    void raiseMouseIn() override;
    void raiseMouseOut() override;

  private:
    void updateMousePointer();
    void tellScreenReaders();

    GlintButton& m_button;
    const GlintState& m_state;
    GlintPictures& m_pictures;

    GlintFont m_font;
    std::int16_t m_pointerShape = 0;
    PictureReference m_mouseIcon;
    mutable QtPointerPlace m_pointer;  ///< a question changes nothing but when it asks again
    QImage m_backdrop;
    int m_shortcut = 0;
    int m_drawnState = kStateUp;
    bool m_drawnOver = false;
    bool m_toldValue = false;  ///< what screen readers know of Value
    bool m_entered = false;
    Qt::MouseButton m_pressedButton = Qt::NoButton;
};

}  // namespace skylob
