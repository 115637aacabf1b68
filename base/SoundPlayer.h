#pragma once

#include <string_view>

namespace skylob {

/// Plays the program's sounds. Whether sound is switched on is the caller's test.
class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;

    /// Starts the named sound and returns at once; a sound still playing is cut off. Names are
    /// matched without regard to case. Throws std::out_of_range when there is no such sound;
    /// one that cannot be played (no device) is silently skipped.
    virtual void PlaySound(std::string_view name) = 0;
};

}  // namespace skylob
