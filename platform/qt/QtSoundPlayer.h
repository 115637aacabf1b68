#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

#include "base/SoundPlayer.h"

namespace skylob {

/// Plays the sounds compiled into the program, one at a time, in a program of their own: a sound
/// goes on while the user-interface thread is busy, and a sound system that does not answer keeps
/// only a thread waiting. Without a sound device, or that program, or a thread for it, the game
/// plays on in silence, after one line on standard error.
///
/// That program runs from when a sound is to be played until nothing has been heard for some
/// seconds: an open device costs processor time even in silence, and its libraries memory.
class QtSoundPlayer final : public SoundPlayer {
  public:
    /// `program` is the name of the one that plays them, on the run path, or its whole path.
    explicit QtSoundPlayer(std::string program = "skylob-sound");
    /// Closes the device, unless that takes more than a second.
    ~QtSoundPlayer() override;

    QtSoundPlayer(const QtSoundPlayer&) = delete;
    QtSoundPlayer& operator=(const QtSoundPlayer&) = delete;

    void PlaySound(std::string_view name) override;

    /// How loud sounds are from now on, one that plays included: 0 to 100 percent, which is what
    /// it begins with.
    void setVolume(int percent);

    /// True while a sound can be heard, or waits for the device to open.
    bool isPlaying() const;

    /// Closes the device for good. Returns false when that takes longer than `patience`: a
    /// thread still waits for the sound system then, and the process should end by _Exit.
    bool close(std::chrono::milliseconds patience);

  private:
    struct Desk;
    void startServing();
    static void serve(const std::shared_ptr<Desk>& desk, const std::string& program);

    std::string m_program;
    std::shared_ptr<Desk> m_desk;  ///< shared with the thread, which may outlive the player
};

}  // namespace skylob
