#pragma once

#include <functional>
#include <utility>

#include "battle/AmbientEffect.h"
#include "battle/BattleState.h"

namespace skylob {

/// Where every command of the player comes in.
class Commands {
  public:
    /// Both must outlive the commands.
    Commands(const BattleState& state, AmbientEffect& effect) : m_state{state}, m_effect{effect} {}

    /// Carries `command` out now, or when the effect under way has ended if it is still wanted
    /// then. False when it is refused.
    bool give(Deed deed, std::function<void()> command) {
        const Verdict verdict = verdictOn(deed, m_state.phase, m_effect.isUnderWay());
        if (verdict == Verdict::No) return false;
        if (verdict == Verdict::Now)
            command();
        else
            m_effect.putInLine(deed, [this, deed, command = std::move(command)] {
                if (isStillWanted(deed, m_state.phase)) command();
            });
        return true;
    }

  private:
    const BattleState& m_state;
    AmbientEffect& m_effect;
};

}  // namespace skylob
