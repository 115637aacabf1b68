#include "platform/SoundProcess.h"

#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <optional>
#include <utility>

#include "platform/SoundOrders.h"

namespace skylob {

namespace {

bool order(int socket, SoundOrder::Kind kind, std::size_t value = 0) {
    const SoundOrder said{kind, static_cast<std::int32_t>(value)};
    return sendAll(socket, std::as_bytes(std::span{&said, 1}));
}

/// Nothing when the program has ended.
std::optional<SoundAnswer> answer(int socket) {
    SoundAnswer said = 0;
    if (!receiveAll(socket, std::as_writable_bytes(std::span{&said, 1}))) return std::nullopt;
    return said;
}

/// Starts a program that has the socket for its standard input. Returns what was wrong, or 0.
int spawn(std::string program, int input, pid_t& process) {
    posix_spawn_file_actions_t files;
    if (const int error = posix_spawn_file_actions_init(&files)) return error;
    int error = posix_spawn_file_actions_adddup2(&files, input, kSoundOrders);
    std::array<char*, 2> arguments{program.data(), nullptr};
    if (error == 0)
        error = posix_spawn(&process, program.c_str(), &files, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    return error;
}

}  // namespace

SoundProcess::SoundProcess(std::string program) : m_program{std::move(program)} {
}

SoundProcess::~SoundProcess() {
    close();
}

void SoundProcess::open() {
    if (m_state != State::Closed) return;
    m_state = State::Missing;
    if (!start()) return;
    const auto isThere = answer(m_socket);
    if (isThere == 1) {
        m_state = State::Open;
        setVolume(m_volume);
    } else {
        // When it could answer, it has also said why.
        if (!isThere) std::fprintf(stderr, "skylob: no sound: %s ends\n", m_program.c_str());
        end();
    }
}

bool SoundProcess::start() {
    std::array<int, 2> sockets{};
    int error = 0;
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets.data()) != 0) {
        error = errno;
    } else {
        error = spawn(m_program, sockets[1], m_process);
        ::close(sockets[1]);
        m_socket = sockets[0];
        if (error != 0) ::close(m_socket);
    }
    if (error != 0)
        std::fprintf(stderr, "skylob: no sound: %s: %s\n", m_program.c_str(), std::strerror(error));
    return error == 0;
}

void SoundProcess::close() {
    if (!isOpen()) return;
    end();
    m_state = State::Closed;
}

/// Closing the socket is what tells it to end.
void SoundProcess::end() {
    ::close(m_socket);
    while (waitpid(m_process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

void SoundProcess::play(std::span<const std::byte> waveFile) {
    if (!isOpen()) return;
    const bool taken =
        order(m_socket, SoundOrder::Kind::Play, waveFile.size()) && sendAll(m_socket, waveFile);
    if (!taken) close();
}

void SoundProcess::setVolume(int percent) {
    m_volume = percent;
    const auto value = static_cast<std::size_t>(percent);
    if (isOpen() && !order(m_socket, SoundOrder::Kind::SetVolume, value)) close();
}

bool SoundProcess::isPlaying() const {
    return isOpen() && order(m_socket, SoundOrder::Kind::IsPlaying) && answer(m_socket) == 1;
}

}  // namespace skylob
