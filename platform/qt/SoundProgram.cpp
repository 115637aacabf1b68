// The program that plays sounds for the game, which starts it: see SoundOrders.
#include <sys/prctl.h>
#include <sys/socket.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <span>
#include <vector>

#include "platform/SoundOrders.h"
#include "platform/qt/SdlSoundDevice.h"

namespace skylob {

namespace {

void answer(bool yes) {
    const SoundAnswer said = yes ? 1 : 0;
    sendAll(kSoundOrders, std::as_bytes(std::span{&said, 1}));
}

void play(SdlSoundDevice& device, std::int32_t size) {
    std::vector<std::byte> waveFile(static_cast<std::size_t>(size));
    if (receiveAll(kSoundOrders, waveFile)) device.play(waveFile);
}

void obey(SdlSoundDevice& device, const SoundOrder& order) {
    switch (order.kind) {
        case SoundOrder::Kind::Play:
            return play(device, order.value);
        case SoundOrder::Kind::SetVolume:
            return device.setVolume(order.value);
        case SoundOrder::Kind::IsPlaying:
            return answer(device.isPlaying());
    }
}

/// Whether the game is at the other end, or has left an order there.
bool isThereAGame() {
    std::byte first{};
    const auto received = ::recv(kSoundOrders, &first, 1, MSG_PEEK | MSG_DONTWAIT);
    return received > 0 || (received < 0 && errno == EAGAIN);
}

int run() {
    // It may have ended before this program could say what is to happen then.
    if (!isThereAGame()) return EXIT_FAILURE;
    SdlSoundDevice device;
    answer(device.isOpen());
    if (!device.isOpen()) return EXIT_FAILURE;
    SoundOrder order{};
    while (receiveAll(kSoundOrders, std::as_writable_bytes(std::span{&order, 1})))
        obey(device, order);
    return EXIT_SUCCESS;
}

}  // namespace

}  // namespace skylob

int main() {
    // A sound system that hangs must not outlive the game.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    return skylob::run();
}
