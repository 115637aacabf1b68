#include "platform/qt/SdlSoundPlayer.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <chrono>
#include <cstdio>
#include <span>
#include <stdexcept>

#include "base/qt/QtText.h"
#include "platform/WaveImage.h"

namespace skylob {

namespace {

constexpr int kRate = 44100, kChannels = 1, kBufferFrames = 1024;
constexpr int kTheOneChannel = 0;
constexpr std::chrono::seconds kSilence{3};

std::string lowerCase(std::string_view name) {
    return toQt(name).toLower().toStdString();
}

QByteArray waveResource(const std::string& name) {
    QFile file{QStringLiteral(":/sounds/") + QString::fromStdString(name) + QStringLiteral(".wav")};
    if (!file.open(QIODevice::ReadOnly)) throw std::out_of_range("no sound named " + name);
    return file.readAll();
}

/// The library refuses a wave file around an MPEG stream as a whole, but plays the stream.
std::span<const std::byte> playablePart(std::span<const std::byte> file) {
    const auto image = readWaveImage(file);
    return image && image->formatTag == WaveImage::kMpegLayer3 ? image->data : file;
}

/// Keeps the standard error empty while it lives: sound systems that find no device complain
/// there at length, from within the library.
class SilencedErrors {
  public:
    SilencedErrors() : m_saved{dup(STDERR_FILENO)} {
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        if (m_saved < 0 || nowhere < 0) return;
        std::fflush(stderr);
        dup2(nowhere, STDERR_FILENO);
        close(nowhere);
    }
    ~SilencedErrors() {
        if (m_saved < 0) return;
        dup2(m_saved, STDERR_FILENO);
        close(m_saved);
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

SdlSoundPlayer::SdlSoundPlayer() {
    // Ctrl+C ends the program, not only its sound.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    m_silenceTimer.setInterval(kSilence);
    QObject::connect(&m_silenceTimer, &QTimer::timeout, [this] {
        if (!isPlaying()) closeDevice();
    });
}

SdlSoundPlayer::~SdlSoundPlayer() {
    closeDevice();
}

void SdlSoundPlayer::closeDevice() {
    m_silenceTimer.stop();
    if (m_device != Device::Open) return;
    Mix_HaltChannel(-1);
    m_chunks.clear();
    Mix_CloseAudio();
    Mix_Quit();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    m_device = Device::Closed;
}

void SdlSoundPlayer::FreeChunk::operator()(Mix_Chunk* chunk) const {
    Mix_FreeChunk(chunk);
}

bool SdlSoundPlayer::openDevice() {
    if (m_device != Device::Closed) return m_device == Device::Open;
    if (openAudio()) {
        Mix_AllocateChannels(1);
        m_device = Device::Open;
        return true;
    }
    m_device = Device::Missing;
    std::fprintf(stderr, "skylob: no sound: %s\n", SDL_GetError());
    return false;
}

Mix_Chunk* SdlSoundPlayer::chunk(const std::string& name) {
    const auto found = m_chunks.find(name);
    if (found != m_chunks.end()) return found->second.get();
    const QByteArray file = waveResource(name);
    const auto bytes =
        playablePart(std::as_bytes(std::span{file.data(), static_cast<std::size_t>(file.size())}));
    Mix_Chunk* made = nullptr;
    if (openDevice()) {
        made = Mix_LoadWAV_RW(SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size())), 1);
    }
    return m_chunks.emplace(name, Chunk{made}).first->second.get();
}

void SdlSoundPlayer::PlaySound(std::string_view name) {
    Mix_Chunk* const sound = chunk(lowerCase(name));
    if (!sound) return;
    Mix_PlayChannel(kTheOneChannel, sound, 0);
    m_silenceTimer.start();
}

bool SdlSoundPlayer::isPlaying() const {
    return m_device == Device::Open && Mix_Playing(kTheOneChannel) != 0;
}

}  // namespace skylob
