#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <utility>

#include "base/Pacer.h"
#include "battle/WhoMayAct.h"

namespace skylob {

/// A meteor or a storm under way. It serves events as it goes, and so lets commands in that must
/// not run in the middle of it: a shot, the end of the set. Such a command waits in line; the
/// effect sees after every yield that it has been interrupted, tidies up and ends.
class AmbientEffect {
  public:
    /// `pacer` must outlive the effect.
    explicit AmbientEffect(Pacer& pacer) : m_pacer{pacer} {}

    bool isRunning() const { return m_isRunning; }

    /// A command waits for the effect's end, or for that of one before it.
    bool isInterrupted() const { return !m_waiting.empty(); }

    bool isUnderWay() const { return m_isRunning || isInterrupted(); }

    /// Serves pending events once; false when the effect has been interrupted.
    bool serveEvents() {
        m_pacer.yieldToEvents();
        return !isInterrupted();
    }

    /// Runs `effect` and, after its end, the commands that have been given meanwhile, in their
    /// order. Calls do not nest. What `effect` or a command throws goes to the caller; nothing
    /// waits any more then.
    void run(const std::function<void()>& effect) {
        const Reset reset{*this};
        m_isRunning = true;
        effect();
        m_isRunning = false;
        // One stays in the line while it runs: what is given in its own yields comes after all.
        for (; isInterrupted(); m_waiting.pop_front()) m_waiting.front().run();
    }

    /// Puts a command in the line while isUnderWay(). A box is clicked as often as it is clicked;
    /// of the others one waits at most: the second click of a double click must not become the
    /// opponent's shot.
    void putInLine(Deed deed, std::function<void()> command) {
        const auto isTheSame = [deed](const Waiting& other) { return other.what == deed; };
        if (deed == Deed::ClickEffectBox || std::ranges::none_of(m_waiting, isTheSame))
            m_waiting.push_back({deed, std::move(command)});
    }

  private:
    struct Waiting {
        Deed what;
        std::function<void()> run;
    };

    struct Reset {
        AmbientEffect& effect;
        ~Reset() {
            effect.m_isRunning = false;
            effect.m_waiting.clear();
        }
    };

    Pacer& m_pacer;
    bool m_isRunning = false;
    std::deque<Waiting> m_waiting;
};

}  // namespace skylob
