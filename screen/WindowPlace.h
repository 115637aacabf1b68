#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace skylob {

/// A rectangle on the desktop in logical pixels, y downwards. The desktop may have several
/// displays, and negative coordinates.
struct DesktopArea {
    int x = 0, y = 0, width = 0, height = 0;

    bool operator==(const DesktopArea&) const = default;
};

/// How many pixels the two have in common.
std::int64_t sharedPixels(const DesktopArea& a, const DesktopArea& b);

enum class WindowState { Normal, Maximised, FullScreen };

/// Where a window stands, without its frame. The area of a window that is maximised or fills the
/// screen is the one to which it returns.
struct WindowPlace {
    DesktopArea area;
    WindowState state = WindowState::Normal;

    bool operator==(const WindowPlace&) const = default;
};

/// As it is remembered: "x,y,width,height,state".
std::string toText(const WindowPlace& place);

/// Nothing where the text is no such place, or its size none that a window can have.
std::optional<WindowPlace> placeOf(std::string_view text);

/// The number of the display, of at least one, that shows most of the area; of the first one where
/// none shows any of it.
std::size_t displayShowing(const DesktopArea& area, const std::vector<DesktopArea>& displays);

/// The area moved, and made smaller, only as far as it has to be to lie within `room`.
DesktopArea broughtInto(const DesktopArea& area, const DesktopArea& room);

}  // namespace skylob
