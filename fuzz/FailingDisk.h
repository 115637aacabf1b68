#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "base/FileSystem.h"

namespace skylob::fuzz {

/// Files in memory that keep to what FileSystem promises, until calls fail that have been told to.
class FailingDisk : public FileSystem {
  public:
    using File = std::unique_ptr<RandomAccessFile>;
    using Name = const std::string&;

    /// So many calls fail, beginning with the one of this number, counted from 1 and from now on.
    void fail(int failures, int first) {
        m_calls = 0;
        m_first = first;
        m_failures = failures;
    }

    /// A file's bytes; none where there is no such file.
    std::string bytes(Name name) const { return hasFile(name) ? *m_files.at(name) : std::string{}; }
    /// Gives a file other bytes; one without any is none.
    void put(Name name, std::string_view bytes) {
        m_files.erase(name);
        if (!bytes.empty()) m_files[name] = std::make_shared<std::string>(bytes);
    }

    File open(Name name) override {
        call();
        auto& file = m_files[name];
        if (!file) file = std::make_shared<std::string>();
        return std::make_unique<OpenFile>(*this, file);
    }
    File openForReading(Name name) override { return open(name); }
    File openLeftover(Name name) override {
        call();
        return hasFile(name) ? std::make_unique<OpenFile>(*this, m_files[name]) : nullptr;
    }
    bool hasFile(Name name) const override { return m_files.contains(name); }
    void remove(Name name) override {
        call();
        m_files.erase(name);
    }
    void replace(Name from, Name to) override {
        call();
        m_files[to] = m_files.at(from);
        m_files.erase(from);
    }
    void replaceContent(Name name, std::string_view bytes, Name through) override {
        call();
        m_files.erase(through);
        m_files[name] = std::make_shared<std::string>(bytes);  // who has the old one open keeps it
    }

  private:
    struct OpenFile : RandomAccessFile {
        OpenFile(FailingDisk& on, std::shared_ptr<std::string> of)
            : disk{on}, file{std::move(of)}, content{*file} {}
        std::int64_t length() const override {
            disk.call();
            return static_cast<std::int64_t>(content.size());
        }
        bool isWritable() const override { return true; }
        std::string read(std::int64_t offset, std::size_t count) const override {
            disk.call();
            const auto at = static_cast<std::size_t>(offset);
            return at > content.size() ? std::string{} : content.substr(at, count);
        }
        void write(std::int64_t offset, std::string_view bytes) override {
            disk.call();
            const auto at = static_cast<std::size_t>(offset);
            content.resize(std::max(content.size(), at + bytes.size()));
            content.replace(at, bytes.size(), bytes);
        }
        void sync() override { disk.call(); }

        FailingDisk& disk;
        std::shared_ptr<std::string> file;
        std::string& content;
    };

    void call() {
        ++m_calls;
        if (m_calls >= m_first && m_calls < m_first + m_failures) throw FileError{"on demand"};
    }

    std::map<std::string, std::shared_ptr<std::string>> m_files;
    int m_calls = 0, m_first = 0, m_failures = 0;
};

}  // namespace skylob::fuzz
