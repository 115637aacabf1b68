#pragma once

#include <string>
#include <string_view>

#include "base/FileSystem.h"

namespace skylob {

/// A file of the system's that is open.
class DiskFile final : public RandomAccessFile {
  public:
    /// `flags` as for the system's open(). Does not wait, not even for a pipe, and is not passed on
    /// to other programs. Null, with errno set, when the system refuses.
    static std::unique_ptr<DiskFile> tryToOpen(const std::string& name, int flags);

    DiskFile(const DiskFile&) = delete;
    DiskFile& operator=(const DiskFile&) = delete;
    ~DiskFile() override;

    std::int64_t length() const override;
    bool isWritable() const override;
    std::string read(std::int64_t offset, std::size_t count) const override;
    void write(std::int64_t offset, std::string_view bytes) override;
    void sync() override;

    bool isPlain() const;

    /// Whether the file has this one name and no other.
    bool hasOneName() const;

    /// Gives a file that was opened without a name one that nothing bears yet; false when the
    /// system refuses.
    bool giveName(const std::string& name) const;

  private:
    DiskFile(int descriptor, std::string name);

    bool tryToWrite(std::int64_t offset, std::string_view bytes);

    int m_descriptor;
    std::string m_name;
};

/// Throws a FileError of the form "Could not open /some/folder/file:" and the reason below it.
[[noreturn]] void failBecause(const char* what, const std::string& name, const std::string& why);

/// The same with the reason in errno; to be called before anything else can change that.
[[noreturn]] void failAsSystemSays(const char* what, const std::string& name);

}  // namespace skylob
