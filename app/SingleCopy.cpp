#include "app/SingleCopy.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>

namespace skylob {

namespace {

/// A folder of the user's that nobody else can write to.
bool isPrivate(const std::string& folder) {
    struct stat status {};
    return ::lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == ::geteuid() && (status.st_mode & 077) == 0;
}

/// Empty when there is none.
std::string runtimeFolder() {
    // Started as somebody else, a program may still see the folder of the user before.
    if (const char* given = std::getenv("XDG_RUNTIME_DIR"); given && isPrivate(given)) return given;
    const std::string own = "/tmp/skylob-" + std::to_string(::geteuid());
    ::mkdir(own.c_str(), 0700);
    return isPrivate(own) ? own : std::string{};
}

}  // namespace

SingleCopy::SingleCopy() {
    const std::string folder = runtimeFolder();
    if (folder.empty()) return;
    const std::string name = folder + "/Skylob.lock";
    m_lock = ::open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (m_lock < 0) return;
    if (::flock(m_lock, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        m_copies = Copies::AnotherOne;
}

SingleCopy::~SingleCopy() {
    release();
}

void SingleCopy::release() {
    if (m_lock >= 0) ::close(m_lock);
    m_lock = -1;
}

}  // namespace skylob
