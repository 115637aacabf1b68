#include "platform/DiskFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace skylob {

void failBecause(const char* what, const std::string& name, const std::string& why) {
    std::error_code noFolder;
    const auto path = std::filesystem::absolute(name, noFolder);
    std::string message = what;
    message += noFolder ? name : path.string();
    message += ":\n";
    message += why;
    throw FileError{message};
}

void failAsSystemSays(const char* what, const std::string& name) {
    failBecause(what, name, std::generic_category().message(errno));
}

namespace {

struct stat statusOf(int descriptor, const std::string& name) {
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) failAsSystemSays("Could not read ", name);
    return status;
}

}  // namespace

std::unique_ptr<DiskFile> DiskFile::tryToOpen(const std::string& name, int flags) {
    // Without O_NONBLOCK a pipe in the file's place would be waited for.
    const int descriptor = ::open(name.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666);
    if (descriptor < 0) return nullptr;
    return std::unique_ptr<DiskFile>{new DiskFile{descriptor, name}};
}

DiskFile::DiskFile(int descriptor, std::string name)
    : m_descriptor{descriptor}, m_name{std::move(name)} {
}

DiskFile::~DiskFile() {
    ::close(m_descriptor);
}

std::int64_t DiskFile::length() const {
    return statusOf(m_descriptor, m_name).st_size;
}

bool DiskFile::isWritable() const {
    return (::fcntl(m_descriptor, F_GETFL) & O_ACCMODE) == O_RDWR;
}

bool DiskFile::isPlain() const {
    return S_ISREG(statusOf(m_descriptor, m_name).st_mode);
}

bool DiskFile::hasOneName() const {
    return statusOf(m_descriptor, m_name).st_nlink == 1;
}

std::string DiskFile::read(std::int64_t offset, std::size_t count) const {
    std::string bytes(count, '\0');
    std::size_t done = 0;
    while (done < count) {
        const ssize_t got = ::pread(m_descriptor, bytes.data() + done, count - done,
                                    offset + static_cast<std::int64_t>(done));
        if (got == 0) break;
        if (got > 0) done += static_cast<std::size_t>(got);
        if (got < 0 && errno != EINTR) failAsSystemSays("Could not read ", m_name);
    }
    bytes.resize(done);
    return bytes;
}

void DiskFile::write(std::int64_t offset, std::string_view bytes) {
    const std::int64_t lengthBefore = length();
    const std::string before = read(offset, bytes.size());
    if (tryToWrite(offset, bytes)) return;
    std::string why = std::generic_category().message(errno);
    tryToWrite(offset, before);  // it fits again
    if (::ftruncate(m_descriptor, lengthBefore) != 0 || read(offset, bytes.size()) != before)
        why += "\nPart of it is in the file";
    failBecause("Could not write ", m_name, why);
}

/// False, with errno set, when not all of it could be written.
bool DiskFile::tryToWrite(std::int64_t offset, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t put = ::pwrite(m_descriptor, bytes.data(), bytes.size(), offset);
        if (put < 0 && errno == EINTR) continue;
        if (put < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(put));
        offset += put;
    }
    return true;
}

void DiskFile::sync() {
    if (::fsync(m_descriptor) != 0) failAsSystemSays("Could not write ", m_name);
}

bool DiskFile::giveName(const std::string& name) const {
    const std::string opened = "/proc/self/fd/" + std::to_string(m_descriptor);
    return ::linkat(AT_FDCWD, opened.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

}  // namespace skylob
