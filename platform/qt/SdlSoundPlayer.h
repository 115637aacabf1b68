#pragma once

#include <QTimer>
#include <map>
#include <memory>
#include <string>

#include "base/SoundPlayer.h"

struct Mix_Chunk;

namespace skylob {

/// Plays the sounds compiled into the program, one at a time, from the audio library's own
/// thread: a sound goes on while the user-interface thread is busy. Without a sound device the
/// game plays on in silence, after one line on standard error.
class SdlSoundPlayer final : public SoundPlayer {
  public:
    /// The device is opened when a sound is to be played, and closed again when nothing has been
    /// heard for some seconds: an open one costs processor time even in silence.
    SdlSoundPlayer();
    ~SdlSoundPlayer() override;

    SdlSoundPlayer(const SdlSoundPlayer&) = delete;
    SdlSoundPlayer& operator=(const SdlSoundPlayer&) = delete;

    void PlaySound(std::string_view name) override;

    /// True while a sound can be heard.
    bool isPlaying() const;

  private:
    struct FreeChunk {
        void operator()(Mix_Chunk* chunk) const;
    };
    using Chunk = std::unique_ptr<Mix_Chunk, FreeChunk>;

    bool openDevice();
    void closeDevice();
    Mix_Chunk* chunk(const std::string& name);

    enum class Device { Closed, Open, Missing };
    Device m_device = Device::Closed;
    std::map<std::string, Chunk> m_chunks;
    QTimer m_silenceTimer;
};

}  // namespace skylob
