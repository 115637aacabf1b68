#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
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
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator{m_path})
            names.insert(entry.path().filename());
        std::string list;
        for (const std::string& name : names) list.append(name).append(" ");
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

/// The disk, which counts what is done on it, and on which one operation goes wrong. Operations are
/// named like "write Skylob.Data".
class FailingFiles : public FileSystem {
  public:
    using File = std::unique_ptr<RandomAccessFile>;

    std::string failing;
    mutable std::map<std::string, int> done;

    File open(const std::string& name) override {
        check("open", name);
        return watched(name, m_disk.open(name));
    }
    File openForReading(const std::string& name) override {
        check("open", name);
        return watched(name, m_disk.openForReading(name));
    }
    File openLeftover(const std::string& name) override {
        check("open", name);
        return m_disk.openLeftover(name);
    }
    bool hasFile(const std::string& name) const override { return m_disk.hasFile(name); }
    void remove(const std::string& name) override {
        check("remove", name);
        m_disk.remove(name);
    }
    void replace(const std::string& from, const std::string& to) override {
        check("replace", to);
        m_disk.replace(from, to);
    }
    void replaceContent(const std::string& name, std::string_view bytes,
                        const std::string& through) override {
        check("replace", name);
        m_disk.replaceContent(name, bytes, through);
    }

  private:
    struct Watched : RandomAccessFile {
        Watched(FailingFiles& of, std::string itsName, File real)
            : files{of}, name{std::move(itsName)}, file{std::move(real)} {}
        std::int64_t length() const override { return file->length(); }
        bool isWritable() const override { return file->isWritable(); }
        std::string read(std::int64_t offset, std::size_t count) const override {
            files.check("read", name);
            return file->read(offset, count);
        }
        void write(std::int64_t offset, std::string_view bytes) override {
            files.check("write", name);
            file->write(offset, bytes);
        }
        void sync() override {
            files.check("sync", name);
            file->sync();
        }

        FailingFiles& files;
        std::string name;
        File file;
    };

    File watched(const std::string& name, File file) {
        return std::make_unique<Watched>(*this, name, std::move(file));
    }
    void check(const std::string& operation, const std::string& name) const {
        const auto what = operation + ' ' + std::filesystem::path{name}.filename().string();
        ++done[what];
        if (what == failing) throw FileError{"failed on demand"};
    }

    DiskFiles m_disk;
};

}  // namespace skylob::test
