#include "battle/ShellFlight.h"

#include <cmath>
#include <cstdlib>

#include "base/Rounding.h"

namespace skylob {

namespace {

// Quirk "wide degree": not quite pi / 180, and single precision. Angles act 1.7 % wider than true
// degrees, and every player's eye is trained on it.
constexpr double kDegree = 0.017745329f;

constexpr int kMuzzleHeight = 8;  // above the ground under the piece

Colour trailColour(int side) {
    return side == 1 ? kRed : kMagenta;
}

}  // namespace

ShellFlight::ShellFlight(const Launch& launch)
    : m_wind{launch.wind}, m_x0{launch.pieceX}, m_y0{launch.pieceY + kMuzzleHeight} {
    const int fromVertical = 90 - launch.angle;
    const int a = launch.side == 2 ? -fromVertical : fromVertical;
    m_vx = launch.speed * std::sin(a * kDegree) / 10;
    m_vy = launch.speed * std::cos(a * kDegree) / 10;
}

FieldPoint ShellFlight::position() const {
    const double t = m_t;
    return {roundToNearest((m_wind / 50.0 + m_vx) * t + m_x0),
            roundToNearest((m_vy - t / 2.5) * t + m_y0)};
}

void ShellFlight::advance() {
    m_t += 0.5f;
    // Quirk "self-made drift": it feeds on the speed itself and so is there without any wind, too.
    m_vx += (m_wind + m_vx) / 2500;
}

bool isFlying(FieldPoint at, const Battlefield& field) {
    // Quirk "late landing": asked only where a step ends, beyond the edge or below the ground.
    return at.x >= 1 && at.x <= kColumns && at.y - field.heightAt(at.x) >= 1;
}

FieldPoint flyShell(const Launch& launch, const Battlefield& field, Trail trail,
                    FieldAnimation& animation, std::int32_t delayCount) {
    FieldPicture& picture = animation.picture();
    animation.start();

    ShellFlight flight{launch};
    FieldPoint at;
    do {
        at = flight.position();
        const auto background = picture.liftPoint(at.x, at.y);
        picture.setPassingPoint(at.x, at.y, kYellow);
        flight.advance();
        animation.hold(delayCount);
        if (trail == Trail::Coloured)
            picture.setPassingPoint(at.x, at.y, trailColour(launch.side));
        else
            picture.putBack(background);
    } while (isFlying(at, field));

    picture.setPassingPoint(at.x, at.y, kBlack);
    animation.show();
    return at;
}

std::int32_t FlightDelayCount(int gameSpeed) {
    return 49'500'001 - 500'000 * gameSpeed;
}

Landing classifyLanding(int x, int shooterX, int targetX) {
    // Quirk "narrow field": a shell can hit the ground in the columns left out here.
    if (x < 5 || x > 995) return Landing::OutOfBounds;
    // Quirk "spared shooter": at a distance of 5 it is not hit, its target is.
    if (std::abs(x - shooterX) < 5) return Landing::SelfHit;
    const int distance = std::abs(x - targetX);
    if (distance < 6) return Landing::DirectHit;
    if (distance < 14) return Landing::NearMiss;
    return Landing::Miss;
}

int nearMissKills(int menLeft, int distance) {
    // Quirk "last man standing": of one man left this is never more than 0.
    return roundToNearest((menLeft + 1.0) / (distance + 1));
}

}  // namespace skylob
