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

/// The disk, on which one operation goes wrong: the one whose name and file's name end in
/// `failing`, such as "write TempFile.$$$".
class FailingFiles : public FileSystem {
  public:
    std::string failing;

    std::unique_ptr<RandomAccessFile> open(const std::string& name) override {
        check("open", name);
        return std::make_unique<File>(*this, name, m_disk.open(name));
    }
    std::unique_ptr<RandomAccessFile> openForReading(const std::string& name) override {
        check("open", name);
        return std::make_unique<File>(*this, name, m_disk.openForReading(name));
    }
    std::unique_ptr<RandomAccessFile> openLeftover(const std::string& name) override {
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
    class File : public RandomAccessFile {
      public:
        File(FailingFiles& files, std::string name, std::unique_ptr<RandomAccessFile> file)
            : m_files{files}, m_name{std::move(name)}, m_file{std::move(file)} {}
        std::int64_t length() const override { return m_file->length(); }
        std::string read(std::int64_t offset, std::size_t count) const override {
            m_files.check("read", m_name);
            return m_file->read(offset, count);
        }
        void write(std::int64_t offset, std::string_view bytes) override {
            m_files.check("write", m_name);
            m_file->write(offset, bytes);
        }
        void sync() override {
            m_files.check("sync", m_name);
            m_file->sync();
        }

      private:
        FailingFiles& m_files;
        std::string m_name;
        std::unique_ptr<RandomAccessFile> m_file;
    };

    void check(const std::string& operation, const std::string& name) const {
        if (operation + ' ' + std::filesystem::path{name}.filename().string() == failing)
            throw FileError{"failed on demand"};
    }

    DiskFiles m_disk;
};

/// The 29 bytes of a record, from the name and the nine bytes behind it.
inline std::string record(std::string name, const std::string& figures) {
    name.resize(20, ' ');
    return name + figures;
}

}  // namespace skylob::test
