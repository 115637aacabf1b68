#pragma once

#include <memory>

#include "platform/SoundDevice.h"

struct Mix_Chunk;

namespace skylob {

/// The sound device behind the audio library, which mixes on a thread of its own.
class SdlSoundDevice final : public SoundDevice {
  public:
    SdlSoundDevice();
    /// Closes it.
    ~SdlSoundDevice() override;

    SdlSoundDevice(const SdlSoundDevice&) = delete;
    SdlSoundDevice& operator=(const SdlSoundDevice&) = delete;

    void open() override;
    void close() override;
    bool isOpen() const override { return m_state == State::Open; }
    void play(std::span<const std::byte> waveFile) override;
    void setVolume(int percent) override;
    bool isPlaying() const override;

  private:
    struct FreeChunk {
        void operator()(Mix_Chunk* chunk) const;
    };

    enum class State { Closed, Open, Missing };
    State m_state = State::Closed;
    int m_volume = 100;
    std::unique_ptr<Mix_Chunk, FreeChunk> m_sound;
};

}  // namespace skylob
