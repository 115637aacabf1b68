#pragma once

namespace skylob {

/// Lets a screen's commands run one at a time. A box that a command shows serves events, and what
/// these ask for must not run in the middle of that command.
class CommandGate {
  public:
    /// A command's leave to run, from here to the end of its block however that comes. False while
    /// another command has it, and when the gate is shut.
    class Pass {
      public:
        explicit Pass(CommandGate& gate) : m_gate{gate.m_state == State::Free ? &gate : nullptr} {
            if (m_gate) m_gate->m_state = State::Taken;
        }
        ~Pass() {
            if (m_gate && m_gate->m_state == State::Taken) m_gate->m_state = State::Free;
        }
        Pass(const Pass&) = delete;
        Pass& operator=(const Pass&) = delete;

        explicit operator bool() const { return m_gate != nullptr; }

      private:
        CommandGate* m_gate;
    };

    /// For good: the screen goes, and no further command runs.
    void shut() { m_state = State::Shut; }

  private:
    enum class State { Free, Taken, Shut };

    State m_state = State::Free;
};

}  // namespace skylob
