#include "battle/light/GhostMark.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "look/Theme.h"

namespace skylob {

namespace {

constexpr double kStem = 9, kMarkRadius = 5, kLineWidth = 1.6;  // logical pixels
constexpr int kRingCorners = 16, kDiamondCorners = 4;

int aimingSide(const BattleState& state) {
    return state.phase == Phase::Shot ? 0 : state.turnNotice.side;
}

}  // namespace

void GhostMark::follow(const FieldSight& sight, ChangedAreas& changed) {
    const PixelRect before = m_area;
    m_area = {};
    const int side = aimingSide(sight.state);
    const bool sameSide = std::exchange(m_side, side) == side;
    if (side != 0)
        if (const auto& at = sight.scene.lastLanding[side]) stand(sight, *at);
    if (m_area == before && sameSide) return;
    changed.add(before);
    changed.add(m_area);
}

void GhostMark::stand(const FieldSight& sight, FieldPoint at) {
    m_foot = sight.middleOf(at);
    m_colour = sideColour(m_side);
    m_lineWidth = sight.scaled(kLineWidth);
    const double radius = sight.scaled(kMarkRadius), above = sight.scaled(kStem) + radius;
    const int corners = m_side == kLeftSide ? kRingCorners : kDiamondCorners;
    m_outline.clear();
    for (int i = 0; i <= corners; ++i) {
        // From the stem's upper end round to it again.
        const double turn = 2 * std::numbers::pi * i / corners;
        m_outline.push_back(
            {m_foot.x + radius * std::sin(turn), m_foot.y - above + radius * std::cos(turn)});
    }
    const double reach = radius + m_lineWidth, top = std::floor(m_foot.y - above - reach);
    const double left = std::floor(m_foot.x - reach);
    m_area = {static_cast<int>(left), static_cast<int>(top),
              static_cast<int>(std::ceil(m_foot.x + reach) - left),
              static_cast<int>(std::ceil(m_foot.y + m_lineWidth) - top)};
}

void GhostMark::paint(LightCanvas& canvas) const {
    if (common(m_area, canvas.area()).isEmpty()) return;
    canvas.line(m_foot, m_outline.front(), m_lineWidth, m_colour);
    for (std::size_t i = 1; i < m_outline.size(); ++i)
        canvas.line(m_outline[i - 1], m_outline[i], m_lineWidth, m_colour);
}

}  // namespace skylob
