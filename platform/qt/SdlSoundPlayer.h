#pragma once

#include <chrono>
#include <memory>

#include "base/SoundPlayer.h"

namespace skylob {

/// Plays the sounds compiled into the program, one at a time and on threads of its own: a sound
/// goes on while the user-interface thread is busy, and a sound system that does not answer keeps
/// nobody else waiting. Without a sound device, or a thread for it, the game plays on in silence,
/// after one line on standard error.
///
/// The device is opened when a sound is to be played, and closed again when nothing has been
/// heard for some seconds: an open one costs processor time even in silence.
class SdlSoundPlayer final : public SoundPlayer {
  public:
    SdlSoundPlayer();
    /// Closes the device, unless that takes more than a second.
    ~SdlSoundPlayer() override;

    SdlSoundPlayer(const SdlSoundPlayer&) = delete;
    SdlSoundPlayer& operator=(const SdlSoundPlayer&) = delete;

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
    static void serve(const std::shared_ptr<Desk>& desk);

    std::shared_ptr<Desk> m_desk;  ///< shared with the thread, which may outlive the player
};

}  // namespace skylob
