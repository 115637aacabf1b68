#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "platform/DiskFiles.h"

namespace skylob::test {

/// A folder of its own, gone with the object.
class TempFolder {
  public:
    TempFolder() {
        std::string name = std::filesystem::temp_directory_path() / "skylob-XXXXXX";
        m_path = mkdtemp(name.data());
    }
    ~TempFolder() { std::filesystem::remove_all(m_path); }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::string operator/(const char* name) const { return m_path / name; }

    /// The names of what is in it, sorted, each followed by a blank.
    std::string content() const {
        std::string list;
        const std::filesystem::directory_iterator all{m_path};
        for (const auto& entry : std::set<std::filesystem::directory_entry>(begin(all), end(all)))
            list += entry.path().filename().string() + ' ';
        return list;
    }

  private:
    std::filesystem::path m_path;
};

inline std::string bytesOf(const std::string& path) {
    std::ifstream file{path, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

inline void putBytes(const std::string& path, const std::string& bytes) {
    std::ofstream{path, std::ios::binary | std::ios::trunc} << bytes;
}

/// The disk, which lists what is done on it, and on which one operation goes wrong. Operations are
/// named like "write Skylob.Data", each followed by a line's end in the list.
class FailingFiles : public FileSystem {
  public:
    using File = std::unique_ptr<RandomAccessFile>;
    using Name = const std::string&;

    std::string failing;
    mutable std::string done;

    File open(Name name) override { return watched(m_disk.open(check("open", name)), name); }
    File openForReading(Name name) override {
        return watched(m_disk.openForReading(check("open", name)), name);
    }
    File openLeftover(Name name) override { return m_disk.openLeftover(check("open", name)); }
    bool hasFile(Name name) const override { return m_disk.hasFile(name); }
    void remove(Name name) override { m_disk.remove(check("remove", name)); }
    void replace(Name from, Name to) override { m_disk.replace(from, check("replace", to)); }
    void replaceContent(Name name, std::string_view bytes, Name through) override {
        m_disk.replaceContent(check("replace", name), bytes, through);
    }

  private:
    struct Watched : RandomAccessFile {
        Watched(FailingFiles& of, Name itsName, File real)
            : files{of}, name{itsName}, file{std::move(real)} {}
        RandomAccessFile& real(const char* operation) const {
            files.check(operation, name);
            return *file;
        }
        std::int64_t length() const override { return file->length(); }
        bool isWritable() const override { return file->isWritable(); }
        std::string read(std::int64_t offset, std::size_t count) const override {
            return real("read").read(offset, count);
        }
        void write(std::int64_t offset, std::string_view bytes) override {
            real("write").write(offset, bytes);
        }
        void sync() override { real("sync").sync(); }

        FailingFiles& files;
        std::string name;
        File file;
    };

    File watched(File file, Name name) {
        return std::make_unique<Watched>(*this, name, std::move(file));
    }
    Name check(const std::string& operation, Name name) const {
        const auto what = operation + ' ' + std::filesystem::path{name}.filename().string();
        done += what + '\n';
        if (what == failing) throw FileError{"failed on demand"};
        return name;
    }

    DiskFiles m_disk;
};

}  // namespace skylob::test
