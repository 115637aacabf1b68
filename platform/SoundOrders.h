#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace skylob {

/// What is said between the game and the program that plays its sounds, over a pair of connected
/// stream sockets of one machine. That program says first whether it has opened the device: an
/// answer, as to every question. It ends when the other end is closed.
struct SoundOrder {
    enum class Kind : std::int32_t {
        Play,       ///< the wave file of `value` bytes that follow
        SetVolume,  ///< to `value` percent, 0 to 100
        IsPlaying,  ///< a question
    };

    Kind kind;
    std::int32_t value = 0;
};

/// 1 for yes, 0 for no.
using SoundAnswer = std::int32_t;

/// Where the program that plays sounds has its end: its standard input.
constexpr int kSoundOrders = 0;

/// Waits until all bytes have gone, or come. False when the other end is closed.
bool sendAll(int socket, std::span<const std::byte> bytes);
bool receiveAll(int socket, std::span<std::byte> bytes);

}  // namespace skylob
