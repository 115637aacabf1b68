#include "platform/qt/QtSoundPlayer.h"

#include <QByteArray>
#include <QFile>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

#include "base/qt/QtText.h"
#include "platform/RunPath.h"
#include "platform/SoundProcess.h"

namespace skylob {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds kSilence = 3s;  ///< then the device is closed
constexpr std::chrono::milliseconds kLook = 20ms;   ///< between two looks for a sound's end
constexpr std::chrono::milliseconds kLong = 24h;

QByteArray waveResource(std::string_view name) {
    QFile file{QStringLiteral(":/sounds/%1.wav").arg(toQt(name).toLower())};
    if (!file.open(QIODevice::ReadOnly))
        throw std::out_of_range("no sound named " + std::string{name});
    return file.readAll();
}

}  // namespace

/// Where the player leaves what its thread is to do. All of it belongs to who holds the mutex.
struct QtSoundPlayer::Desk {
    std::mutex mutex;
    std::condition_variable changed;
    std::optional<QByteArray> next;  ///< the sound to be played
    int volume = 100;                ///< percent
    bool isPlaying = false;
    bool isClosing = false;  ///< there will be no sounds any more
    bool isServed = false;   ///< the thread runs
};

QtSoundPlayer::QtSoundPlayer(std::string program)
    : m_program{std::move(program)}, m_desk{std::make_shared<Desk>()} {
}

QtSoundPlayer::~QtSoundPlayer() {
    close(1s);
}

void QtSoundPlayer::PlaySound(std::string_view name) {
    const QByteArray sound = waveResource(name);
    const std::lock_guard lock{m_desk->mutex};
    if (m_desk->isClosing) return;
    if (!m_desk->isServed) startServing();
    if (!m_desk->isServed) return;
    m_desk->next = sound;
    m_desk->isPlaying = true;
    m_desk->changed.notify_all();
}

/// Without a thread there are no sounds, and no second try.
void QtSoundPlayer::startServing() {
    try {
        std::thread{[desk = m_desk, program = m_program] { serve(desk, program); }}.detach();
        m_desk->isServed = true;
    } catch (const std::system_error& error) {
        std::fprintf(stderr, "skylob: no sound: %s\n", error.what());
        m_desk->isClosing = true;
    }
}

void QtSoundPlayer::setVolume(int percent) {
    const std::lock_guard lock{m_desk->mutex};
    m_desk->volume = percent;
}

bool QtSoundPlayer::isPlaying() const {
    const std::lock_guard lock{m_desk->mutex};
    return m_desk->isPlaying;
}

bool QtSoundPlayer::close(std::chrono::milliseconds patience) {
    std::unique_lock lock{m_desk->mutex};
    m_desk->isClosing = true;
    m_desk->changed.notify_all();
    return m_desk->changed.wait_for(lock, patience, [this] { return !m_desk->isServed; });
}

void QtSoundPlayer::serve(const std::shared_ptr<Desk>& desk, const std::string& program) {
    SoundProcess device{foundOnRunPath(program)};
    std::unique_lock lock{desk->mutex};
    // The device is used without the mutex: nobody waits for what may take for ever.
    const auto unlocked = [&lock](const auto& work) {
        lock.unlock();
        work();
        lock.lock();
    };
    const auto isWanted = [&desk] { return desk->next || desk->isClosing; };
    for (;;) {
        const auto pause = desk->isPlaying ? kLook : device.isOpen() ? kSilence : kLong;
        const bool wanted = desk->changed.wait_for(lock, pause, isWanted);
        unlocked([&, volume = desk->volume] { device.setVolume(volume); });
        if (desk->next) {
            unlocked([&] { device.open(); });
            // That may have taken a while: the newest by now.
            const QByteArray sound = *std::exchange(desk->next, std::nullopt);
            unlocked([&] { device.play(std::as_bytes(std::span{sound})); });
        } else if (wanted) {
            break;
        } else if (!desk->isPlaying) {
            unlocked([&] { device.close(); });
        }
        bool isHeard = false;
        unlocked([&] { isHeard = device.isPlaying(); });
        desk->isPlaying = desk->next || isHeard;
    }
    unlocked([&] { device.close(); });
    desk->isPlaying = desk->isServed = false;
    desk->changed.notify_all();
}

}  // namespace skylob
