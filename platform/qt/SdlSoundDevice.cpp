#include "platform/qt/SdlSoundDevice.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <span>
#include <utility>

#include "platform/WaveImage.h"

namespace skylob {

namespace {

constexpr int kRate = 44100, kChannels = 1, kBufferFrames = 1024;
constexpr int kTheOneChannel = 0;

/// The library refuses a wave file around an MPEG stream as a whole, but plays the stream.
std::span<const std::byte> playablePart(std::span<const std::byte> file) {
    const auto image = readWaveImage(file);
    return image && image->formatTag == WaveImage::kMpegLayer3 ? image->data : file;
}

/// Keeps the standard error empty while it lives: sound systems that find no device complain
/// there at length, from within the library.
class SilencedErrors {
  public:
    SilencedErrors() : m_saved{fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1)} {
        const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        if (m_saved < 0 || nowhere < 0) return;
        std::fflush(stderr);
        dup2(nowhere, STDERR_FILENO);
        ::close(nowhere);
    }
    ~SilencedErrors() {
        if (m_saved < 0) return;
        dup2(m_saved, STDERR_FILENO);
        ::close(m_saved);
    }

    SilencedErrors(const SilencedErrors&) = delete;
    SilencedErrors& operator=(const SilencedErrors&) = delete;

  private:
    int m_saved;
};

bool openAudio() {
    const SilencedErrors silenced;
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
    if (Mix_OpenAudioDevice(kRate, AUDIO_S16SYS, kChannels, kBufferFrames, nullptr, 0) == 0)
        return true;
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return false;
}

}  // namespace

SdlSoundDevice::SdlSoundDevice() {
    // Ctrl+C ends the program, not only its sound.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    // What the desktop's volume control calls it.
    SDL_SetHint(SDL_HINT_APP_NAME, "Skylob");
    m_isOpen = openAudio();
    if (m_isOpen)
        Mix_AllocateChannels(1);
    else
        std::fprintf(stderr, "skylob: no sound: %s\n", SDL_GetError());
}

SdlSoundDevice::~SdlSoundDevice() {
    if (!m_isOpen) return;
    Mix_HaltChannel(kTheOneChannel);
    m_sound.reset();
    Mix_CloseAudio();
    Mix_Quit();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

void SdlSoundDevice::FreeChunk::operator()(Mix_Chunk* chunk) const {
    Mix_FreeChunk(chunk);
}

void SdlSoundDevice::play(std::span<const std::byte> waveFile) {
    if (!m_isOpen) return;
    const auto bytes = playablePart(waveFile);
    decltype(m_sound) sound{
        Mix_LoadWAV_RW(SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size())), 1)};
    if (!sound) return;
    Mix_PlayChannel(kTheOneChannel, sound.get(), 0);
    m_sound = std::move(sound);
}

void SdlSoundDevice::setVolume(int percent) {
    if (m_isOpen) Mix_Volume(kTheOneChannel, percent * MIX_MAX_VOLUME / 100);
}

bool SdlSoundDevice::isPlaying() const {
    return m_isOpen && Mix_Playing(kTheOneChannel) != 0;
}

}  // namespace skylob
