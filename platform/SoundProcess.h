#pragma once

#include <sys/types.h>

#include <cstddef>
#include <span>
#include <string>

namespace skylob {

/// What plays sounds, one at a time, in a process of its own that runs while the sound device is
/// open: the audio library brings more libraries along than all the rest of the game, and what goes
/// wrong in one of them costs a sound, not the game. If it ends by itself, the next sound starts it
/// again.
///
/// Everything may take as long as the sound system of the machine lets it: for ever, if it hangs.
/// All calls have to come from one thread, with whose end the process ends, too.
class SoundProcess {
  public:
    /// `program` is the path of the program that plays sounds.
    explicit SoundProcess(std::string program);
    /// Closes it.
    ~SoundProcess();

    SoundProcess(const SoundProcess&) = delete;
    SoundProcess& operator=(const SoundProcess&) = delete;

    /// Does nothing when it is open, or when device or program have turned out to be missing; that
    /// is worth a line on standard error.
    void open();
    void close();
    bool isOpen() const { return m_state == State::Open; }

    /// Starts a wave file; a sound still playing is cut off. Does nothing while the device is not
    /// open, nor with a file that cannot be played.
    void play(std::span<const std::byte> waveFile);

    /// How loud what plays and what will play is, 0 to 100 percent.
    void setVolume(int percent);

    bool isPlaying() const;

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
