#pragma once

#include <cstddef>
#include <span>

namespace skylob {

/// What plays sounds, one at a time. Opening and closing take as long as the sound system of the
/// machine lets them: for ever, if it hangs. All calls have to come from one thread.
class SoundDevice {
  public:
    virtual ~SoundDevice() = default;

    /// Does nothing when it is open, or has turned out to be missing; that is worth a line on
    /// standard error.
    virtual void open() = 0;
    virtual void close() = 0;
    virtual bool isOpen() const = 0;

    /// Starts a wave file; a sound still playing is cut off. Does nothing while the device is not
    /// open, nor with a file that cannot be played.
    virtual void play(std::span<const std::byte> waveFile) = 0;

    /// How loud what plays and what will play is, 0 to 100 percent.
    virtual void setVolume(int percent) = 0;

    virtual bool isPlaying() const = 0;
};

}  // namespace skylob
