#include "battle/light/StormShow.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "battle/light/FieldLayer.h"

namespace skylob {

namespace {

constexpr int kDrops = 80;
constexpr int kSquall = 3;       // it rains in one part of so many
constexpr int kSquallWay = 160;  // pictures that it takes to cross the field
constexpr int kSlant = 5;        // a drop is blown one drop's width to the left for each 5 it falls
constexpr std::uint32_t kNearDrop = 0xFF5B6E94u, kFarDrop = 0xFF35425Fu;

// What lies over the sky in a flicker, the last picture first, and how rarely one comes: every
// three seconds.
constexpr std::array<std::uint32_t, 5> kFlashes{0x108FA5D8u, 0x388FA5D8u, 0x188FA5D8u, 0x4D8FA5D8u,
                                                0x208FA5D8u};
constexpr int kPicturesForAFlicker = 30;

/// Its green, of which the eye makes most; a whole sky is asked for it ten times a second.
std::uint32_t brightness(std::uint32_t pixel) {
    return pixel & 0xFF00u;
}

int dropWidth(int height) {
    return std::max(1, (height + 256) / 512);
}

/// The sizes are those of a field of 512 lines.
int dropLength(int height, bool isNear) {
    return std::max(2, height * (isNear ? 18 : 12) / 512);
}

PixelRect within(const PixelRect& area, const FieldLayer& layer) {
    return common(area, {0, 0, layer.width(), layer.height()});
}

}  // namespace

void StormShow::advance(FieldLayer& layer) {
    if (m_width != layer.width() || m_height != layer.height()) strew(layer);
    m_changes.swap(m_lit);
    m_lit.clear();
    m_lights.clear();
    if (layer.motion() == Motion::Full) blow(layer);
    for (Drop& drop : m_drops) show(drop, layer);
    m_changes.insert(m_changes.end(), m_lit.begin(), m_lit.end());
}

void StormShow::blow(FieldLayer& layer) {
    flicker(layer);
    m_squall -= std::max(m_width / kSquallWay, 1);
    // One goes, and the next comes, while half of it is still to be seen.
    const int half = m_width / kSquall / 2;
    if (m_squall < -half) m_squall = m_width - half;
    for (Drop& drop : m_drops) fall(drop);
}

void StormShow::end() {
    m_changes.swap(m_lit);
    m_lit.clear();
    m_lights.clear();
    m_flash = 0;
}

int StormShow::below(int end) {
    return static_cast<int>(m_chance() % static_cast<unsigned>(std::max(end, 1)));
}

/// Where a new drop begins to fall: the squall is blown about as the drops are.
int StormShow::inSquall() {
    return m_squall + below(m_width / kSquall + m_height / kSlant);
}

void StormShow::strew(const FieldLayer& layer) {
    m_width = layer.width();
    m_height = layer.height();
    m_squall = m_width - m_width / kSquall;
    m_drops.clear();
    for (int number = 0; number < kDrops; ++number) {
        const int x = inSquall(), y = below(m_height);
        m_drops.push_back({x, y, number % 2 == 0});
    }
}

void StormShow::flicker(FieldLayer& layer) {
    if (m_flash > 0)
        --m_flash;
    else if (below(kPicturesForAFlicker) == 0)
        m_flash = static_cast<int>(kFlashes.size());
    if (m_flash == 0) return;
    const PixelRect sky{0, 0, m_width, m_height};
    lightUp(sky, kFlashes[static_cast<std::size_t>(m_flash - 1)], layer);
    m_lit.push_back(sky);
}

void StormShow::fall(Drop& drop) {
    const int way = dropLength(m_height, drop.isNear) * 3 / 2;
    drop.y += way;
    drop.x -= way / kSlant;
    if (drop.y >= m_height) drop = {inSquall(), -below(way), drop.isNear};
}

void StormShow::show(Drop& drop, FieldLayer& layer) {
    const int width = dropWidth(m_height), length = dropLength(m_height, drop.isNear);
    const int step = width * kSlant, steps = (length + step - 1) / step;
    const std::size_t before = m_lights.size();
    for (int down = 0; down < steps; ++down)
        lightUp({drop.x - down * width, drop.y + down * step, width,
                 std::min(step, length - down * step)},
                drop.isNear ? kNearDrop : kFarDrop, layer);
    if (m_lights.size() == before) drop.y = m_height;  // behind a hill: the next one, please
    const PixelRect around =
        within({drop.x - (steps - 1) * width, drop.y, steps * width, length}, layer);
    if (!around.isEmpty()) m_lit.push_back(around);
}

void StormShow::lightUp(const PixelRect& area, std::uint32_t pixel, FieldLayer& layer) {
    const PixelRect seen = within(area, layer);
    const std::uint32_t bright = brightness(pixel);
    for (int y = seen.y; y < seen.bottom(); ++y) {
        const std::uint32_t* const shown = layer.whole() + std::ptrdiff_t{y} * m_width;
        const std::uint32_t* const rules = layer.rules() + std::ptrdiff_t{y} * m_width;
        const bool hasGuns = layer.showsGuns(y);  // a whole sky is asked pixel by pixel
        const auto isLit = [&](int x) {
            return (hasGuns ? layer.showsSky(x, y) : rules[x] == kBlack.pixel()) &&
                   brightness(shown[x]) < bright;
        };
        for (int x = seen.x; x < seen.right(); ++x) {
            const int from = x;
            while (x < seen.right() && isLit(x)) ++x;
            if (x > from) addRun({from, y, x - from, 1}, pixel);
        }
    }
}

/// Puts it under the last one, if that is as long: there is less to be painted then.
void StormShow::addRun(const PixelRect& run, std::uint32_t pixel) {
    PixelRect* const above = m_lights.empty() ? nullptr : &m_lights.back().area;
    if (above && m_lights.back().pixel == pixel && above->x == run.x && above->width == run.width &&
        above->bottom() == run.y)
        ++above->height;
    else
        m_lights.push_back({run, pixel});
}

}  // namespace skylob
