#include "platform/SoundOrders.h"

#include <sys/socket.h>

#include <cerrno>

namespace skylob {

bool sendAll(int socket, std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
        const auto sent = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR) continue;
        if (sent < 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(sent));
    }
    return true;
}

bool receiveAll(int socket, std::span<std::byte> bytes) {
    while (!bytes.empty()) {
        const auto received = ::recv(socket, bytes.data(), bytes.size(), 0);
        if (received < 0 && errno == EINTR) continue;
        if (received <= 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(received));
    }
    return true;
}

}  // namespace skylob
