#include "battle/ComputerOpponent.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/Rounding.h"
#include "base/basSkylob.h"

namespace skylob {

// Every division of whole numbers below cuts towards zero.

namespace {
constexpr int kSide = kRightSide, kTarget = kLeftSide;
}

ComputerOpponent::ComputerOpponent(BattleState& state, Aims& aims, RandomSource& random)
    : m_state{state}, m_aims{aims}, m_random{random} {
}

void ComputerOpponent::takeAim(int skillLevel) {
    const int error = RandomInt(m_random, kGoodSkill - skillLevel, skillLevel - kGoodSkill);
    // Quirk "forgotten bullseye": a miss of exactly 0 looks like no shot at all.
    if (m_state.AimDistance == 0)
        measureField(error);
    else
        correctAim(skillLevel, error);
    raiseToFloor(error);
}

void ComputerOpponent::measureField(int error) {
    const Battlefield& field = m_state.field;
    m_state.LastImpactX = field.PeakX;
    m_state.AimDistance = field.PieceX[kSide] - field.PieceX[kTarget];
    m_state.ComputerAngle = angleOverMountain();
    // Quirk "held at every step": each of these is an assignment of its own, and each is held
    // within the control's range.
    addSpeed((field.PieceY[kTarget] - field.PieceY[kSide]) / 5);
    if (m_state.Wind != 0) addSpeed(m_state.Wind);
    addAngle(error / 2);
    addSpeed(error);
    addAngle((600 - m_state.AimDistance) / 50);
}

int ComputerOpponent::angleOverMountain() const {
    const Battlefield& field = m_state.field;
    const int rise = field.heightAt(field.PeakX) - field.PieceY[kSide];
    if (rise < 0) return 72;
    const int run = field.PieceX[kSide] - field.PeakX;
    const double slope = std::atan(static_cast<double>(rise) / run) * 57.2958;
    return std::max(70, roundToNearest(std::floor(slope) + 10));
}

void ComputerOpponent::correctAim(int skillLevel, int error) {
    const int impact = m_state.LastImpactX;
    const int miss = impact - m_state.field.PieceX[kTarget];
    m_state.AimDistance = miss;
    if (impact > m_state.field.PeakX) {
        // It did not clear the mountain.
        const int steeper = m_aims.angle(kSide) < m_state.ComputerAngle + 3 ? 2 : 0;
        addSpeed(miss / (skillLevel + 4));
        addAngle(steeper);
    } else if (impact < 2) {
        // It flew off the field to the left.
        const int k = RandomInt(m_random, 3, 5);
        addSpeed(4 * k);
        addAngle(k);
    } else if (std::abs(miss) < 71) {
        addSpeed((miss / (skillLevel + 3) + error) * 2);
    } else {
        addSpeed(error);
        addAngle(error - miss / 50);
    }
}

void ComputerOpponent::raiseToFloor(int error) {
    const int angle = m_aims.angle(kSide);
    if (angle >= m_state.ComputerAngle) return;
    // Quirk "angle beyond 90": the bar never reaches such a one, so this comes again at each turn.
    addSpeed((m_state.ComputerAngle - angle) * 4 + error);
    m_aims.setAngle(kSide, m_state.ComputerAngle);
}

void ComputerOpponent::addSpeed(int change) {
    m_aims.setSpeed(kSide, m_aims.speed(kSide) + change);
}

void ComputerOpponent::addAngle(int change) {
    m_aims.setAngle(kSide, m_aims.angle(kSide) + change);
}

}  // namespace skylob
