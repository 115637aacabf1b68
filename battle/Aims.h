#pragma once

#include <functional>

#include "battle/BattleState.h"

namespace skylob {

/// The speed and angle bars of both sides, for whoever moves them: a player, the computer, the
/// start of a round.
class Aims {
  public:
    /// `aims` must outlive this. `moved` is called after each change of a value.
    Aims(PerSide<Aim>& aims, std::function<void()> moved);

    int speed(int side) const { return m_aims[side].speed; }
    int angle(int side) const { return m_aims[side].angle; }

    /// A value outside kSpeedRange or kAngleRange is brought to the nearer end. One that is there
    /// already is no change.
    void setSpeed(int side, int value);
    void setAngle(int side, int value);

  private:
    void move(int& bar, int value);

    PerSide<Aim>& m_aims;
    std::function<void()> m_moved;
};

}  // namespace skylob
