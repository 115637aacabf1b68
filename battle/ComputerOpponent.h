#pragma once

#include "base/basSkylob.h"
#include "battle/BattleControls.h"
#include "battle/BattlePorts.h"
#include "battle/BattleState.h"

namespace skylob {

/// The computer as a player. It always plays side 2 and aims with that side's own controls, so
/// that everybody sees them move. Its first shot of a set, and any after its remembered miss was
/// 0, comes from measuring the field; the others are corrections of its last shot, even of one
/// in an earlier round.
class ComputerOpponent {
  public:
    /// All four must outlive the opponent.
    ComputerOpponent(const basSkylob& shared, BattleState& state, BattleControls& controls,
                     const BattlePorts& ports);

    /// Thinks, aims, and gives the onlookers a moment; the shot is then the caller's to fire.
    void ComputerTurn();

  private:
    void measureField(int error);
    void correctAim(int error);
    void raiseToFloor(int error);
    void addSpeed(int change);
    void addAngle(int change);
    int angleOverMountain() const;

    const basSkylob& m_shared;
    BattleState& m_state;
    BattleControls& m_controls;
    BattlePorts m_ports;
};

}  // namespace skylob
