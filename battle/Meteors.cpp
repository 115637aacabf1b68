#include "battle/Meteors.h"

#include <algorithm>
#include <limits>

#include "battle/Explosion.h"

namespace skylob {

namespace {

constexpr int kMostSteps = 1200;
constexpr int kFirstSkyColumn = 15, kLastSkyColumn = 985;  // a meteor beyond them has left the sky
constexpr int kImpactHeight = 15;                          // above the ground
constexpr int kNarrow = 2, kWide = 3;                      // a meteor flickers between these widths

int startHeight(const Battlefield& field, int column, RandomSource& random) {
    if (column == 1 || column == 999) return RandomInt(random, field.heightAt(column) + 20, 980);
    return RandomInt(random, std::max(field.PeakX, 900), 999);
}

/// 1 to the right, -1 to the left.
int direction(int column, RandomSource& random) {
    if (column < 100) return 1;
    if (column > 900) return -1;
    return RandomInt(random, -1, 0) == -1 ? 1 : -1;
}

}  // namespace

MeteorPath meteorPath(const Battlefield& field, RandomSource& random) {
    MeteorPath path;
    FieldPoint& at = path.end;
    // Quirk "lost meteors": half of all are drawn beyond the sides. They come in at the edge, where
    // their first step ends them.
    at.x = std::clamp(RandomInt(random, -500, 1500), 1, 999);
    at.y = startHeight(field, at.x, random);
    const int step = direction(at.x, random);
    const int slope = RandomInt(random, -1, 0);
    for (int count = 1; count <= kMostSteps; ++count) {
        at.x += step;
        at.y += RandomInt(random, -1, 0) + slope;
        // Quirk "off the field": asked before the ground, so it does not explode.
        if (at.x < kFirstSkyColumn || at.x > kLastSkyColumn) return path;
        path.hitsGround = at.y <= field.heightAt(at.x) + kImpactHeight;
        if (path.hitsGround) return path;
        path.points.push_back(at);
    }
    return path;
}

std::int32_t meteorDelayCount(int gameSpeed) {
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    const std::int64_t counts = (std::int64_t{100} - gameSpeed) * 15'000;
    return static_cast<std::int32_t>(std::clamp(counts, std::int64_t{0}, kMost));
}

void Meteors::fly() {
    const MeteorPath path = meteorPath(m_sky.state.field, m_sky.random);
    streak(path.points);
    if (path.hitsGround && !m_sky.effect.isInterrupted()) {
        // Quirk "quiet meteors": there is no sound to it, and nobody is asked whether it hit.
        animateExplosion(path.end, Landing::Miss, m_sky.animation,
                         FlightDelayCount(m_shared.GameSpeed));
    }
    m_sky.state.penWidth = 1;
}

void Meteors::streak(const std::vector<FieldPoint>& points) {
    FieldPicture& picture = m_sky.animation.picture();
    int width = kNarrow;
    m_sky.animation.start();
    for (const FieldPoint& at : points) {
        if (RandomInt(m_sky.random, 1, 20) == 10) width = kNarrow + kWide - width;
        const auto sky = picture.liftPoint(at.x, at.y, width);
        picture.setPassingPoint(at.x, at.y, kYellow, width);
        m_sky.animation.scene().meteor.push_back(at);
        // Asked anew at each point: the game speed bar can be moved meanwhile.
        m_sky.animation.hold(meteorDelayCount(m_shared.GameSpeed));
        const bool goesOn = m_sky.effect.serveEvents();
        picture.putBack(sky);
        if (!goesOn) break;
    }
    m_sky.animation.scene().meteor.clear();
    m_sky.animation.show();
}

}  // namespace skylob
