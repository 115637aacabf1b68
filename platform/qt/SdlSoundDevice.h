#pragma once

#include <cstddef>
#include <memory>
#include <span>

struct Mix_Chunk;

namespace skylob {

/// The sound device, open for as long as the object lives. The audio library mixes on a thread of
/// its own, one sound at a time.
class SdlSoundDevice {
  public:
    /// Opens it. Where there is none, one line on standard error says why, and nothing is played.
    SdlSoundDevice();
    ~SdlSoundDevice();

    SdlSoundDevice(const SdlSoundDevice&) = delete;
    SdlSoundDevice& operator=(const SdlSoundDevice&) = delete;

    bool isOpen() const { return m_isOpen; }

    /// Starts a wave file; a sound still playing is cut off. Does nothing with a file that cannot
    /// be played.
    void play(std::span<const std::byte> waveFile);

    /// How loud what plays and what will play is, 0 to 100 percent.
    void setVolume(int percent);

    bool isPlaying() const;

  private:
    struct FreeChunk {
        void operator()(Mix_Chunk* chunk) const;
    };

    bool m_isOpen = false;
    std::unique_ptr<Mix_Chunk, FreeChunk> m_sound;
};

}  // namespace skylob
