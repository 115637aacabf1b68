#include "platform/DiskFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

// The one place in the rules that speaks to the system itself: the standard library can neither
// bring a file to the disk nor say why it could not open or write one.

namespace skylob {

namespace {

[[noreturn]] void failBecause(const char* what, const std::string& name, const std::string& why) {
    std::error_code noFolder;
    const auto path = std::filesystem::absolute(name, noFolder);
    std::string message = what;
    message += noFolder ? name : path.string();
    message += ":\n";
    message += why;
    throw FileError{message};
}

/// To be called before anything else can change errno.
[[noreturn]] void fail(const char* what, const std::string& name) {
    failBecause(what, name, std::generic_category().message(errno));
}

class DiskFile final : public RandomAccessFile {
  public:
    DiskFile(int descriptor, std::string name)
        : m_descriptor{descriptor}, m_name{std::move(name)} {}
    DiskFile(const DiskFile&) = delete;
    DiskFile& operator=(const DiskFile&) = delete;
    ~DiskFile() override { ::close(m_descriptor); }

    std::int64_t length() const override {
        struct stat status {};
        if (::fstat(m_descriptor, &status) != 0) fail("Could not read ", m_name);
        return status.st_size;
    }

    std::string read(std::int64_t offset, std::size_t count) const override {
        std::string bytes(count, '\0');
        std::size_t done = 0;
        while (done < count) {
            const ssize_t got = ::pread(m_descriptor, bytes.data() + done, count - done,
                                        offset + static_cast<std::int64_t>(done));
            if (got == 0) break;
            if (got > 0) done += static_cast<std::size_t>(got);
            if (got < 0 && errno != EINTR) fail("Could not read ", m_name);
        }
        bytes.resize(done);
        return bytes;
    }

    void write(std::int64_t offset, std::string_view bytes) override {
        const std::int64_t lengthBefore = length();
        const std::string before = read(offset, bytes.size());
        if (tryToWrite(offset, bytes)) return;
        const int reason = errno;
        // What was there fits again.
        static_cast<void>(tryToWrite(offset, before));
        static_cast<void>(::ftruncate(m_descriptor, lengthBefore));
        errno = reason;
        fail("Could not write ", m_name);
    }

    void sync() override {
        if (::fsync(m_descriptor) != 0) fail("Could not write ", m_name);
    }

  private:
    /// False, with errno set, when not all of it could be written.
    bool tryToWrite(std::int64_t offset, std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t put = ::pwrite(m_descriptor, bytes.data(), bytes.size(), offset);
            if (put < 0 && errno == EINTR) continue;
            if (put < 0) return false;
            bytes.remove_prefix(static_cast<std::size_t>(put));
            offset += put;
        }
        return true;
    }

    int m_descriptor;
    std::string m_name;
};

/// Brings a changed name to the disk. Some file systems cannot; the name is then as safe as they
/// make it.
void syncFolderOf(const std::string& name) {
    const auto folder = std::filesystem::path{name}.parent_path();
    const int descriptor =
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

}  // namespace

std::unique_ptr<RandomAccessFile> DiskFiles::open(const std::string& name) {
    // Without O_NONBLOCK a pipe in the file's place would be waited for.
    const int descriptor =
        ::open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666);
    if (descriptor < 0) fail("Could not open ", name);
    auto file = std::make_unique<DiskFile>(descriptor, name);
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) fail("Could not open ", name);
    if (!S_ISREG(status.st_mode)) failBecause("Could not open ", name, "It is no plain file");
    return file;
}

bool DiskFiles::hasFile(const std::string& name) const {
    std::error_code unknown;
    return std::filesystem::is_regular_file(name, unknown);
}

void DiskFiles::remove(const std::string& name) {
    if (::unlink(name.c_str()) != 0) fail("Could not delete ", name);
}

void DiskFiles::replace(const std::string& from, const std::string& to) {
    if (std::rename(from.c_str(), to.c_str()) != 0) fail("Could not replace ", to);
    syncFolderOf(to);
}

}  // namespace skylob
