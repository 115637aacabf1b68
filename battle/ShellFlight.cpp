#include "battle/ShellFlight.h"

#include <cmath>

#include "base/Rounding.h"

namespace skylob {

namespace {

Colour trailColour(int side) {
    return side == 1 ? kRed : kMagenta;
}

}  // namespace

double launchDirection(int side, int angle) {
    const int fromVertical = 90 - angle;
    return (side == 2 ? -fromVertical : fromVertical) * kDegree;
}

ShellFlight::ShellFlight(const Launch& launch)
    : m_wind{launch.wind}, m_x0{launch.pieceX}, m_y0{launch.pieceY + kMuzzleHeight} {
    const double direction = launchDirection(launch.side, launch.angle);
    m_vx = launch.speed * std::sin(direction) / 10;
    m_vy = launch.speed * std::cos(direction) / 10;
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
    FieldScene::Flight& seen = animation.scene().flight;
    seen = {launch.side, true, trail == Trail::Coloured, {}};
    animation.start();

    ShellFlight flight{launch};
    FieldPoint at;
    do {
        at = flight.position();
        const auto background = picture.liftPoint(at.x, at.y);
        picture.setPassingPoint(at.x, at.y, kYellow);
        flight.advance();
        seen.path.push_back(at);
        animation.hold(delayCount);
        if (trail == Trail::Coloured)
            picture.setPassingPoint(at.x, at.y, trailColour(launch.side));
        else
            picture.putBack(background);
    } while (isFlying(at, field));

    picture.setPassingPoint(at.x, at.y, kBlack);
    seen.inTheAir = false;
    animation.show();
    return at;
}

std::int32_t FlightDelayCount(int gameSpeed) {
    return 49'500'001 - 500'000 * gameSpeed;
}

}  // namespace skylob
