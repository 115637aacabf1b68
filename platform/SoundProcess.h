#pragma once

#include <sys/types.h>

#include <string>

#include "platform/SoundDevice.h"

namespace skylob {

/// The sound device in a process of its own, which runs while the device is open: the audio library
/// brings more libraries along than all the rest of the game, and what goes wrong in one of them
/// costs a sound, not the game. Where the program cannot be started, one line on standard error
/// says so, and the device never opens. If it ends by itself, the next sound starts it again.
class SoundProcess final : public SoundDevice {
  public:
    /// `program` is the path of the program that plays sounds.
    explicit SoundProcess(std::string program);
    /// Closes it.
    ~SoundProcess() override;

    SoundProcess(const SoundProcess&) = delete;
    SoundProcess& operator=(const SoundProcess&) = delete;

    void open() override;
    void close() override;
    bool isOpen() const override { return m_state == State::Open; }
    void play(std::span<const std::byte> waveFile) override;
    void setVolume(int percent) override;
    bool isPlaying() const override;

  private:
    bool start();
    void end();

    enum class State { Closed, Open, Missing };
    State m_state = State::Closed;
    int m_volume = 100;
    std::string m_program;
    int m_socket = -1;
    pid_t m_process = -1;
};

}  // namespace skylob
