#include "battle/ComputerOpponent.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/Rounding.h"

namespace skylob {

// Every division of whole numbers below cuts towards zero.

namespace {
constexpr int kSide = 2;
}

ComputerOpponent::ComputerOpponent(const basSkylob& shared, BattleState& state,
                                   BattleControls& controls, const BattlePorts& ports)
    : m_shared{shared}, m_state{state}, m_controls{controls}, m_ports{ports} {
}

void ComputerOpponent::ComputerTurn() {
    m_ports.pacer.Wait(1);
    const int level = m_shared.SkillLevel;
    const int error = RandomInt(m_ports.random, 4 - level, level - 4);
    if (m_state.AimDistance == 0)
        measureField(error);
    else
        correctAim(error);
    raiseToFloor(error);
    m_ports.pacer.yieldToEvents();
    m_ports.pacer.Wait(0.25f);
}

void ComputerOpponent::measureField(int error) {
    const Battlefield& field = m_state.field;
    m_state.LastImpactX = field.PeakX;
    m_state.AimDistance = field.PieceX[2] - field.PieceX[1];
    m_state.ComputerAngle = angleOverMountain();
    // Each of these is an assignment of its own, and each is held within the control's range.
    addSpeed((field.PieceY[1] - field.PieceY[2]) / 5);
    if (m_state.Wind != 0) addSpeed(m_state.Wind);
    addAngle(error / 2);
    addSpeed(error);
    addAngle((600 - m_state.AimDistance) / 50);
}

int ComputerOpponent::angleOverMountain() const {
    const Battlefield& field = m_state.field;
    const int rise = field.heightAt(field.PeakX) - field.PieceY[2];
    if (rise < 0) return 72;
    const int run = field.PieceX[2] - field.PeakX;
    const double slope = std::atan(static_cast<double>(rise) / run) * 57.2958;
    return std::max(70, roundToNearest(std::floor(slope) + 10));
}

void ComputerOpponent::correctAim(int error) {
    const int level = m_shared.SkillLevel;
    const int impact = m_state.LastImpactX;
    const int miss = impact - m_state.field.PieceX[1];
    m_state.AimDistance = miss;
    if (impact > m_state.field.PeakX) {
        // It did not clear the mountain.
        const int steeper = m_controls.angle(kSide) < m_state.ComputerAngle + 3 ? 2 : 0;
        addSpeed(miss / (level + 4));
        addAngle(steeper);
    } else if (impact < 2) {
        // It flew off the field to the left.
        const int k = RandomInt(m_ports.random, 3, 5);
        addSpeed(4 * k);
        addAngle(k);
    } else if (std::abs(miss) < 71) {
        addSpeed((miss / (level + 3) + error) * 2);
    } else {
        addSpeed(error);
        addAngle(error - miss / 50);
    }
}

void ComputerOpponent::raiseToFloor(int error) {
    const int angle = m_controls.angle(kSide);
    if (angle >= m_state.ComputerAngle) return;
    addSpeed((m_state.ComputerAngle - angle) * 4 + error);
    m_controls.setAngle(kSide, m_state.ComputerAngle);
}

void ComputerOpponent::addSpeed(int change) {
    m_controls.setSpeed(kSide, m_controls.speed(kSide) + change);
}

void ComputerOpponent::addAngle(int change) {
    m_controls.setAngle(kSide, m_controls.angle(kSide) + change);
}

}  // namespace skylob
