#pragma once

#include <sstream>
#include <type_traits>
#include <utility>

#include "controls/GlintDesign.h"
#include "controls/GlintInteraction.h"
#include "controls/GlintLayout.h"

namespace skylob::test {

inline std::ostream& operator<<(std::ostream& out, const GlintMouse& mouse) {
    return out << mouse.button << ' ' << mouse.shift << ' ' << mouse.x << ' ' << mouse.y;
}

/// A button of 100 x 40 pixels whose surface, pointer and form write all that happens into one
/// log, a drawing with what it showed. A caption takes 7 pixels for each of its bytes in one line
/// of 10.
class GlintRig : public GlintSurface, public GlintPointer, public GlintEvents {
  public:
    using Number = std::int16_t;

    void paint(int state, bool flag) override {
        note("Redraw ", state, flag ? "" : " plain", button.IsOver ? " over" : "",
             button.Value ? " on" : "", button.HasFocus ? " focused" : "");
    }
    void propertyChanged(std::string_view key) override { note("mark ", key); }
    bool isUserMode() const override { return userMode; }
    std::string displayName() const override { return "cmdNew"; }
    GlintFont ambientFont() const override { return {.name = "Ambient", .size = 13}; }
    ContainerColours containerColours() const override {
        note("palette");
        return {Colour::fromBgr(0x302010), kWhite};
    }
    GlintFont font() const override { return surfaceFont; }
    void setFont(const GlintFont& font) override { keep("font", surfaceFont, font); }
    void setEnabled(bool enabled) override { note(enabled ? "enabled" : "disabled"); }
    std::int16_t mousePointer() const override { return pointerShape; }
    void setMousePointer(std::int16_t shape) override { keep("pointer", pointerShape, shape); }
    PictureReference mouseIcon() const override { return icon; }
    void setMouseIcon(const PictureReference& picture) override { keep("icon", icon, picture); }
    void setAccessKeyFrom(const std::string&) override { note("access key"); }
    GlintSize measurePicture(const PictureReference& picture) const override {
        note("measure");
        return picture.empty() ? GlintSize{} : GlintSize{16, 12};
    }
    GlintRect measureCaption(const std::string& caption, const GlintRect& bounds) const override {
        note("layout");
        const int width = 7 * static_cast<int>(caption.size());
        return {bounds.left, bounds.top, bounds.left + width, bounds.top + 10};
    }
    GlintWindowHandle windowHandle() const override { return 77; }
    GlintSize clientSize() const override { return client; }
    void setRegion(const std::vector<GlintPixel>& cut) override { note("region ", cut.size()); }
    void captureBackground() override {
        note("capture background");
        resize(button, *this);
    }

    bool IsPointerInside() const override { return inside; }
    bool isOverTimerRunning() const override { return timerRuns; }
    void runOverTimer(bool run) override { keep(run ? "timer on" : "timer off", timerRuns, run); }
    void captureMouse() override { note("capture mouse"); }

    void raiseClick() override { note("Click"); }
    void raiseMouseDown(const GlintMouse& mouse) override { note("MouseDown ", mouse); }
    void raiseMouseMove(const GlintMouse& mouse) override { note("MouseMove ", mouse); }
    void raiseMouseUp(const GlintMouse& mouse) override { note("MouseUp ", mouse); }
    void raiseKeyPress(Number key) override { note("KeyPress ", key); }
    void raiseKeyDown(Number key, Number on) override { note("KeyDown ", key, ' ', on); }
    void raiseKeyUp(Number key, Number on) override { note("KeyUp ", key, ' ', on); }
    void raiseMouseOver() override { note("MouseOver"); }
    void raiseMouseIn() override { note("MouseIn"); }
    void raiseMouseOut() override { note("MouseOut"); }

    /// What has happened since the last call, each followed by a semicolon.
    std::string taken() { return std::exchange(log, {}); }

    /// The same once something more is reported to the button.
    template <typename... Values>
    std::string after(void (GlintInteraction::*report)(Values...),
                      const std::type_identity_t<Values>&... values) {
        (interaction.*report)(values...);
        return taken();
    }

    GlintState button;
    bool userMode = true, inside = true, timerRuns = false;
    GlintSize client{100, 40};
    GlintFont surfaceFont;
    std::int16_t pointerShape = 0;
    PictureReference icon;
    GlintDesign design{button, *this};
    GlintInteraction interaction{button, *this, *this, *this};

  private:
    template <typename... Words>
    void note(const Words&... words) const {
        std::ostringstream text;
        (text << ... << words) << ';';
        log += text.str();
    }

    template <typename Value>
    void keep(const char* what, Value& place, const Value& value) {
        note(what);
        place = value;
    }

    mutable std::string log;
};

}  // namespace skylob::test
