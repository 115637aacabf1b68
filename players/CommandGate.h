#pragma once

namespace skylob {

/// Lets a screen's commands run one at a time. A box that a command shows serves events, and what
/// these ask for must not run in the middle of that command.
class CommandGate {
  public:
    /// Runs a command, which may fail. False, without running it, while another one runs and when
    /// the gate is shut.
    template <typename Command>
    bool run(const Command& command) {
        if (m_state != State::Free) return false;
        const Turn turn{m_state};
        command();
        return true;
    }

    /// For good: the screen goes, and no further command runs.
    void shut() { m_state = State::Shut; }

  private:
    enum class State { Free, Taken, Shut };

    /// A command's turn, until the end of the block however that comes.
    struct Turn {
        explicit Turn(State& ofGate) : state{ofGate} { state = State::Taken; }
        ~Turn() {
            if (state == State::Taken) state = State::Free;
        }
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;

        State& state;
    };

    State m_state = State::Free;
};

}  // namespace skylob
