#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <utility>

namespace skylob {

/// A meteor or a storm under way. It serves events as it goes, and so lets commands in that must
/// not run in the middle of it: a shot, the end of the set. Such a command is put off; the effect
/// asks whether it has been interrupted after every yield, and if so tidies up and ends.
class AmbientEffect {
  public:
    /// What can be put off. A box is clicked as often as it is clicked; a shot and leaving wait
    /// once at most: the second click of a double click must not become the opponent's shot.
    enum class Command { Shoot, Quit, BoxClick };

    bool isRunning() const { return m_isRunning; }

    /// A command waits for the effect's end, or for that of one before it.
    bool isInterrupted() const { return !m_waiting.empty(); }

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

    /// Runs `action` at once, or when its turn has come.
    void give(Command command, std::function<void()> action) {
        if (!m_isRunning && !isInterrupted()) return action();
        const auto isTheSame = [command](const Waiting& other) { return other.what == command; };
        if (command == Command::BoxClick || std::ranges::none_of(m_waiting, isTheSame))
            m_waiting.push_back({command, std::move(action)});
    }

  private:
    struct Waiting {
        Command what;
        std::function<void()> run;
    };

    struct Reset {
        AmbientEffect& effect;
        ~Reset() {
            effect.m_isRunning = false;
            effect.m_waiting.clear();
        }
    };

    bool m_isRunning = false;
    std::deque<Waiting> m_waiting;
};

}  // namespace skylob
