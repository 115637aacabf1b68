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
        const Verdict verdict = verdictOn(deed, phase(), m_effect.isUnderWay());
        if (verdict == Verdict::No) return false;
        if (verdict == Verdict::Now)
            command();
        else
            m_effect.putInLine(deed, [this, deed, command = std::move(command)] {
                if (isStillWanted(deed, m_state.phase)) command();
            });
        return true;
    }

    /// Runs `commands`, which are given in place of the player of a set that is only watched.
    void asThePlayer(const std::function<void()>& commands) {
        m_isInPlace = true;
        commands();
        m_isInPlace = false;
    }

  private:
    Phase phase() const {
        return m_isInPlace && m_state.phase == Phase::Watching ? Phase::Waiting : m_state.phase;
    }

    const BattleState& m_state;
    AmbientEffect& m_effect;
    bool m_isInPlace = false;
};

}  // namespace skylob
