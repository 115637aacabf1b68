#include "screen/ClearPlace.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace skylob {

namespace {

/// One direction of an area.
struct Span {
    int start, length;

    int end() const { return start + length; }
    int centred(int other) const { return start + (length - other) / 2; }
};

Span across(const DesktopArea& area) {
    return {area.x, area.width};
}
Span down(const DesktopArea& area) {
    return {area.y, area.height};
}

std::int64_t hidden(const DesktopArea& window, const std::vector<DesktopArea>& toBeSeen) {
    std::int64_t pixels = 0;
    for (const DesktopArea& part : toBeSeen) pixels += sharedPixels(window, part);
    return pixels;
}

/// In the middle, at the display's edges, and touching what is to be seen on either side: the best
/// place is made of two of these.
std::vector<int> starts(int length, Span display, Span over,
                        const std::vector<DesktopArea>& toBeSeen,
                        Span (*direction)(const DesktopArea&)) {
    std::vector<int> found{over.centred(length), display.start, display.end() - length};
    for (const DesktopArea& part : toBeSeen) {
        found.push_back(direction(part).start - length);
        found.push_back(direction(part).end());
    }
    const int last = std::max(display.start, display.end() - length);
    for (int& start : found) start = std::clamp(start, display.start, last);
    return found;
}

}  // namespace

DesktopArea clearPlace(int width, int height, const DesktopArea& display, const DesktopArea& over,
                       const std::vector<DesktopArea>& toBeSeen) {
    const auto drawback = [&](const DesktopArea& place) {
        const std::int64_t dx = place.x - across(over).centred(width);
        const std::int64_t dy = place.y - down(over).centred(height);
        return std::pair{hidden(place, toBeSeen), dx * dx + dy * dy};
    };
    std::vector<DesktopArea> places;
    for (const int x : starts(width, across(display), across(over), toBeSeen, across))
        for (const int y : starts(height, down(display), down(over), toBeSeen, down))
            places.push_back({x, y, width, height});
    return *std::min_element(places.begin(), places.end(),
                             [&](const DesktopArea& one, const DesktopArea& other) {
                                 return drawback(one) < drawback(other);
                             });
}

}  // namespace skylob
