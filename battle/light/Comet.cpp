#include "battle/light/Comet.h"

#include <cmath>

namespace skylob {

namespace {

constexpr double kSpacing = 2;  // of the tail's lights, in logical pixels

}  // namespace

void Comet::follow(const FieldSight& sight, std::span<const FieldPoint> path,
                   ChangedAreas& changed) {
    changed.add(m_area);
    m_glows.clear();
    m_area = {};
    if (path.empty()) return;
    layTail(sight, path);
    m_coreRadius = sight.scaled(m_look.coreRadius);
    m_glows.push_back({sight.middleOf(path.back()), sight.scaled(m_look.glowRadius), m_look.head,
                       m_look.glowStrength});
    for (const Glow& glow : m_glows) m_area = united(m_area, glow.area());
    changed.add(m_area);
}

/// Lights at even distances back along the path.
void Comet::layTail(const FieldSight& sight, std::span<const FieldPoint> path) {
    const double length = sight.scaled(m_look.tailLength), spacing = sight.scaled(kSpacing);
    double behind = 0, next = spacing;  // the head, up to the end of this stretch
    LightPoint at = sight.middleOf(path.back());
    for (std::size_t i = path.size() - 1; i > 0 && next < length; --i) {
        const LightPoint back = sight.middleOf(path[i - 1]);
        const double stretch = std::hypot(back.x - at.x, back.y - at.y);
        for (; next <= behind + stretch && next < length; next += spacing) {
            const double left = 1 - next / length;
            m_glows.push_back({between(at, back, (next - behind) / stretch),
                               sight.scaled(m_look.tailRadius) * (0.4 + 0.6 * left), m_look.tail,
                               m_look.tailStrength * left});
        }
        behind += stretch;
        at = back;
    }
}

void Comet::paint(LightCanvas& canvas) const {
    if (m_glows.empty() || common(m_area, canvas.area()).isEmpty()) return;
    for (const Glow& glow : m_glows) glow.paint(canvas);
    canvas.disc(m_glows.back().at, m_coreRadius, m_look.head);
}

}  // namespace skylob
