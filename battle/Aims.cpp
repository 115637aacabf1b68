#include "battle/Aims.h"

#include <utility>

namespace skylob {

Aims::Aims(PerSide<Aim>& aims, std::function<void()> moved)
    : m_aims{aims}, m_moved{std::move(moved)} {
}

void Aims::setSpeed(int side, int value) {
    // Quirk "held at every step": what is computed with these goes on from the held value.
    move(m_aims[side].speed, kSpeedRange.held(value));
}

void Aims::setAngle(int side, int value) {
    move(m_aims[side].angle, kAngleRange.held(value));
}

void Aims::move(int& bar, int value) {
    if (std::exchange(bar, value) != value) m_moved();
}

}  // namespace skylob
