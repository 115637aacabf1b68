#pragma once

#include "base/RandomInt.h"
#include "battle/Aims.h"
#include "battle/BattleState.h"

namespace skylob {

/// The computer as a player. It always plays side 2 and aims with that side's own controls, so
/// that everybody sees them move. Its first shot of a set, and any after its remembered miss was
/// 0, comes from measuring the field; the others are corrections of its last shot, even of one
/// in an earlier round.
class ComputerOpponent {
  public:
    /// All three must outlive the opponent.
    ComputerOpponent(BattleState& state, Aims& aims, RandomSource& random);

    /// Aims for its next shot, as well as `skillLevel` (kGoodSkill, kFairSkill, kPoorSkill) allows.
    void takeAim(int skillLevel);

  private:
    void measureField(int error);
    void correctAim(int skillLevel, int error);
    void raiseToFloor(int error);
    void addSpeed(int change);
    void addAngle(int change);
    int angleOverMountain() const;

    BattleState& m_state;
    Aims& m_aims;
    RandomSource& m_random;
};

}  // namespace skylob
