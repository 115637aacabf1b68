#pragma once

#include <functional>
#include <utility>

namespace skylob {

/// A meteor or a storm under way. It serves events as it goes, and so lets commands in that must
/// not run in the middle of it: a shot, the end of the set. Such a command is put off; the effect
/// asks whether it has been interrupted after every yield, and if so tidies up and ends.
class AmbientEffect {
  public:
    bool isRunning() const { return m_isRunning; }

    /// A command waits for the effect's end.
    bool isInterrupted() const { return static_cast<bool>(m_command); }

    /// Runs `effect` and, after its end, the command that has interrupted it. Calls do not nest.
    void run(const std::function<void()>& effect) {
        m_isRunning = true;
        effect();
        m_isRunning = false;
        if (const auto command = std::exchange(m_command, {})) command();
    }

    /// True while an effect runs: `command` will follow it and is not to run now. Only the first
    /// one does; the second click of a double click must not become the opponent's shot.
    bool putsOff(std::function<void()> command) {
        if (m_isRunning && !m_command) m_command = std::move(command);
        return m_isRunning;
    }

  private:
    bool m_isRunning = false;
    std::function<void()> m_command;
};

}  // namespace skylob
