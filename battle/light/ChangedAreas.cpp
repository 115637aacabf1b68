#include "battle/light/ChangedAreas.h"

namespace skylob {

namespace {

constexpr std::size_t kMost = 12;
constexpr long kWorthOne = 600;  // pixels that cost as much as an area of their own

long pixels(const PixelRect& area) {
    return long{area.width} * area.height;
}

/// The pixels that are in neither, but in the rectangle around both.
long wasted(const PixelRect& a, const PixelRect& b) {
    return pixels(united(a, b)) - pixels(a) - pixels(b);
}

}  // namespace

void ChangedAreas::start(const PixelRect& whole) {
    m_whole = whole;
    m_areas.clear();
}

void ChangedAreas::add(const PixelRect& area) {
    PixelRect added = common(area, m_whole);
    while (!added.isEmpty()) {
        const auto nearest = std::min_element(m_areas.begin(), m_areas.end(),
                                              [&added](const PixelRect& a, const PixelRect& b) {
                                                  return wasted(a, added) < wasted(b, added);
                                              });
        const bool alone = nearest == m_areas.end() ||
                           (m_areas.size() < kMost && wasted(*nearest, added) > kWorthOne);
        if (alone) break;
        if (united(*nearest, added) == *nearest) return;
        added = united(*nearest, added);
        m_areas.erase(nearest);
    }
    if (!added.isEmpty()) m_areas.push_back(added);
}

void ChangedAreas::addWhole() {
    m_areas.clear();
    add(m_whole);
}

}  // namespace skylob
