#include "platform/DiskFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "platform/DiskFile.h"

// With DiskFile the one place in the rules that speaks to the system itself: the standard library
// can neither bring a file to the disk nor say why it could not open or write one.

namespace skylob {

namespace {

using File = std::unique_ptr<DiskFile>;

std::string folderOf(const std::string& name) {
    const auto folder = std::filesystem::path{name}.parent_path();
    return folder.empty() ? "." : folder.string();
}

/// Brings a changed name to the disk. Some file systems cannot; the name is then as safe as they
/// make it.
void syncFolderOf(const std::string& name) {
    const int descriptor = ::open(folderOf(name).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

File tryToOpenForBoth(const std::string& name) {
    return DiskFile::tryToOpen(name, O_RDWR | O_CREAT);
}

File checked(File file, const std::string& name) {
    if (!file) failAsSystemSays("Could not open ", name);
    if (!file->isPlain()) failBecause("Could not open ", name, "It is no plain file");
    return file;
}

/// Whether this file, opened with O_NOFOLLOW, is nobody else's: plain, and without a second name.
bool isUnshared(const File& file) {
    return file && file->isPlain() && file->hasOneName();
}

/// Takes a file or a link of that name away, and nothing else.
void freeName(const std::string& name) {
    struct stat status {};
    if (::lstat(name.c_str(), &status) != 0) return;
    if (!S_ISREG(status.st_mode) && !S_ISLNK(status.st_mode))
        failBecause("Could not replace ", name, "It is no plain file");
    if (::unlink(name.c_str()) != 0 && errno != ENOENT)
        failAsSystemSays("Could not replace ", name);
}

void fill(DiskFile& file, std::string_view bytes) {
    file.write(0, bytes);
    file.sync();
}

/// Puts the bytes into a file that gets its name when it is whole. Null where the file system has
/// no files without a name.
File tryToMakeUnnamed(const std::string& name, std::string_view bytes) {
    File file = DiskFile::tryToOpen(folderOf(name), O_TMPFILE | O_RDWR);
    if (!file) return nullptr;
    fill(*file, bytes);
    freeName(name);
    return file->giveName(name) ? std::move(file) : nullptr;
}

/// The same in a file that has its name from the first: an older one of ours is not cut short, so
/// that it keeps what it has beyond these bytes if we are interrupted.
File makeNamed(const std::string& name, std::string_view bytes) {
    File file = DiskFile::tryToOpen(name, O_RDWR | O_NOFOLLOW);
    if (!isUnshared(file)) {
        freeName(name);
        file = checked(DiskFile::tryToOpen(name, O_RDWR | O_CREAT | O_EXCL), name);
    }
    fill(*file, bytes);
    return file;
}

}  // namespace

std::unique_ptr<RandomAccessFile> DiskFiles::open(const std::string& name) {
    return checked(tryToOpenForBoth(name), name);
}

std::unique_ptr<RandomAccessFile> DiskFiles::openForReading(const std::string& name) {
    File file = tryToOpenForBoth(name);
    const int reason = errno;
    if (!file) file = DiskFile::tryToOpen(name, O_RDONLY);
    errno = reason;
    return checked(std::move(file), name);
}

std::unique_ptr<RandomAccessFile> DiskFiles::openLeftover(const std::string& name) {
    File file = DiskFile::tryToOpen(name, O_RDONLY | O_NOFOLLOW);
    if (!file && errno != ENOENT && errno != ELOOP) failAsSystemSays("Could not open ", name);
    return isUnshared(file) ? std::move(file) : nullptr;
}

bool DiskFiles::hasFile(const std::string& name) const {
    std::error_code unknown;
    return std::filesystem::is_regular_file(name, unknown);
}

void DiskFiles::remove(const std::string& name) {
    if (::unlink(name.c_str()) != 0 && errno != ENOENT) failAsSystemSays("Could not delete ", name);
}

void DiskFiles::replace(const std::string& from, const std::string& to) {
    if (std::rename(from.c_str(), to.c_str()) != 0) failAsSystemSays("Could not replace ", to);
    syncFolderOf(to);
}

void DiskFiles::replaceContent(const std::string& name, std::string_view bytes,
                               const std::string& through) {
    // Closed only after the renaming, so that nothing comes between that and the naming.
    File file = tryToMakeUnnamed(through, bytes);
    if (!file) file = makeNamed(through, bytes);
    try {
        replace(through, name);
    } catch (const FileError&) {
        ::unlink(through.c_str());
        throw;
    }
}

}  // namespace skylob
