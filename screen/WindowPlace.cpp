#include "screen/WindowPlace.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/WholeNumber.h"

namespace skylob {

namespace {

constexpr int kFarthestWindow = 1'000'000;  // no desktop reaches so far
constexpr int kLargest = 32'767;            // of a window, as window systems have it

constexpr std::array<std::pair<WindowState, std::string_view>, 3> kStates{
    {{WindowState::Normal, "normal"},
     {WindowState::Maximised, "maximised"},
     {WindowState::FullScreen, "fullscreen"}}};

/// Takes off what stands in front of the first comma.
std::string_view takeField(std::string_view& text) {
    const std::string_view field = text.substr(0, text.find(','));
    text.remove_prefix(std::min(field.size() + 1, text.size()));
    return field;
}

std::int64_t sharedLength(int start, int length, int otherStart, int otherLength) {
    const int end = std::min(start + length, otherStart + otherLength);
    return std::max(0, end - std::max(start, otherStart));
}

}  // namespace

std::int64_t sharedPixels(const DesktopArea& a, const DesktopArea& b) {
    return sharedLength(a.x, a.width, b.x, b.width) * sharedLength(a.y, a.height, b.y, b.height);
}

std::string toText(const WindowPlace& place) {
    std::string text;
    for (const int number : {place.area.x, place.area.y, place.area.width, place.area.height})
        text += std::to_string(number) + ',';
    for (const auto& [state, name] : kStates)
        if (state == place.state) text += name;
    return text;
}

std::optional<WindowPlace> placeOf(std::string_view text) {
    WindowPlace place;
    auto& [x, y, width, height] = place.area;
    for (int* const number : {&x, &y, &width, &height}) {
        const std::optional<int> read = wholeNumber(takeField(text));
        if (!read || *read < -kFarthestWindow || *read > kFarthestWindow) return {};
        *number = *read;
    }
    if (std::min(width, height) < 1 || std::max(width, height) > kLargest) return {};
    for (const auto& [state, name] : kStates) {
        place.state = state;
        if (text == name) return place;
    }
    return {};
}

std::size_t displayShowing(const DesktopArea& area, const std::vector<DesktopArea>& displays) {
    const auto showsLess = [&area](const DesktopArea& a, const DesktopArea& b) {
        return sharedPixels(a, area) < sharedPixels(b, area);
    };
    const auto most = std::max_element(displays.begin(), displays.end(), showsLess);
    return static_cast<std::size_t>(most - displays.begin());
}

DesktopArea broughtInto(const DesktopArea& area, const DesktopArea& room) {
    const int width = std::min(area.width, room.width);
    const int height = std::min(area.height, room.height);
    return {std::clamp(area.x, room.x, room.x + room.width - width),
            std::clamp(area.y, room.y, room.y + room.height - height), width, height};
}

}  // namespace skylob
