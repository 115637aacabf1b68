#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "controls/GlintPalette.h"
#include "controls/GlintState.h"

namespace skylob {

/// A pixel of a button that does not belong to it.
struct GlintPixel {
    int x, y;

    bool operator==(const GlintPixel&) const = default;
};

/// The number by which the window system knows a window.
using GlintWindowHandle = std::uintptr_t;

/// The window that a button lives on and the host behind it, as the button's rules see them.
class GlintSurface {
  public:
    virtual ~GlintSurface() = default;

    /// Draws the button in a state. `flag` is false from the plain mouse and key handlers and
    /// true from everything else.
    virtual void paint(int state, bool flag) = 0;

    /// The value under a key has changed: the form needs saving.
    virtual void propertyChanged(std::string_view key) = 0;

    /// True while a program runs, false while a form is being designed.
    virtual bool isUserMode() const = 0;

    /// The control's own name on its form, and the form's font: what a new button begins with.
    virtual std::string displayName() const = 0;
    virtual GlintFont ambientFont() const = 0;
    virtual ContainerColours containerColours() const = 0;

    virtual GlintFont font() const = 0;
    virtual void setFont(const GlintFont& font) = 0;
    virtual void setEnabled(bool enabled) = 0;
    /// The pointer's shape over the button, and the picture of a shape of one's own.
    virtual std::int16_t mousePointer() const = 0;
    virtual void setMousePointer(std::int16_t shape) = 0;
    virtual PictureReference mouseIcon() const = 0;
    virtual void setMouseIcon(const PictureReference& picture) = 0;
    /// The caption whose access key the host is to report.
    virtual void setAccessKeyFrom(const std::string& caption) = 0;

    /// A picture's size in pixels; 0 x 0 for none.
    virtual GlintSize measurePicture(const PictureReference& picture) const = 0;
    /// The space that a caption takes in the surface's font when it is wrapped by words within
    /// the bounds: the result has their left and top.
    virtual GlintRect measureCaption(const std::string& caption, const GlintRect& bounds) const = 0;

    /// The button's own window. It may have had none till then, and keeps it from then on.
    virtual GlintWindowHandle windowHandle() const = 0;
    virtual GlintSize clientSize() const = 0;
    /// The button's window is all of its client rectangle but these pixels.
    virtual void setRegion(const std::vector<GlintPixel>& removed) = 0;
    /// Copies what the parent shows behind the button, for kStyleGlass.
    virtual void captureBackground() = 0;
};

/// Redraws the button and remembers the state as the current one.
inline void Redraw(GlintState& button, GlintSurface& surface, int state, bool flag) {
    button.currentState = state;
    surface.paint(state, flag);
}

}  // namespace skylob
