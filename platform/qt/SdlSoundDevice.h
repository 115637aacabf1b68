#pragma once

#include <QByteArray>
#include <memory>

struct Mix_Chunk;

namespace skylob {

/// The sound device behind the audio library, which mixes on a thread of its own. Opening and
/// closing take as long as the sound system of the machine lets them: for ever, if it hangs.
/// All calls have to come from one thread.
class SdlSoundDevice {
  public:
    SdlSoundDevice();
    /// Closes it.
    ~SdlSoundDevice();

    SdlSoundDevice(const SdlSoundDevice&) = delete;
    SdlSoundDevice& operator=(const SdlSoundDevice&) = delete;

    /// Does nothing when it is open, or has turned out to be missing; that is worth a line on
    /// standard error.
    void open();
    void close();
    bool isOpen() const { return m_state == State::Open; }

    /// Starts a wave file; a sound still playing is cut off. Does nothing while the device is not
    /// open, nor with a file that cannot be played.
    void play(const QByteArray& waveFile);

    /// How loud what plays and what will play is, 0 to 100 percent.
    void setVolume(int percent);

    bool isPlaying() const;

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
