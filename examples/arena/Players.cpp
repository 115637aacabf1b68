#include "arena/Players.h"

#include <algorithm>
#include <cmath>

#include "base/Rounding.h"

namespace skylob::arena {

namespace {

constexpr int kFirstSpeed = 350, kStep = 50;
constexpr int kFlattest = 78, kSteepest = 85;

/// Ten degrees above the line of sight to the mountain's top.
int angleOverMountain(const Battlefield& field) {
    const int rise = field.heightAt(field.PeakX) - field.PieceY[kLeftSide];
    const int run = field.PeakX - field.PieceX[kLeftSide];
    const double degrees = std::atan2(rise, run) * 57.2958;
    return std::clamp(roundToNearest(degrees) + 10, kFlattest, kSteepest);
}

}  // namespace

void CorrectingPlayer::beginRound(const Battlefield& field) {
    m_aim = {kFirstSpeed, angleOverMountain(field)};
    m_short.reset();
    m_past.reset();
}

void CorrectingPlayer::seeLanding(int beyond) {
    (beyond < 0 ? m_short : m_past) = Landing{m_aim.speed, beyond};
    if (!m_past) {
        m_aim.speed += kStep;
    } else if (!m_short) {
        m_aim.speed -= kStep;
    } else {
        const double share = -1.0 * m_short->beyond / (m_past->beyond - m_short->beyond);
        const int low = std::min(m_short->speed, m_past->speed);
        m_aim.speed = std::max(
            low + 1, roundToNearest(m_short->speed + share * (m_past->speed - m_short->speed)));
    }
    m_aim.speed = kSpeedRange.held(m_aim.speed);
}

}  // namespace skylob::arena
