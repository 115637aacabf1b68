#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace skylob {

/// Something could not be done with a file; what() says to the player what it was and why.
class FileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A file that is open for reading and writing at any place; the destructor closes it. Every
/// member throws FileError when it fails.
class RandomAccessFile {
  public:
    virtual ~RandomAccessFile() = default;

    /// In bytes.
    virtual std::int64_t length() const = 0;

    /// False for a file of which openForReading() could open nothing but its content.
    virtual bool isWritable() const = 0;

    /// The `count` bytes from `offset` on, or as many of them as there are.
    virtual std::string read(std::int64_t offset, std::size_t count) const = 0;

    /// Writes all of `bytes` from `offset` on. When that fails, the file is as it was before, or
    /// the error says that it is not.
    virtual void write(std::int64_t offset, std::string_view bytes) = 0;

    /// Returns when everything written so far would survive a loss of power.
    virtual void sync() = 0;
};

/// The files of a folder, or what stands for them in a test. Every member throws FileError when it
/// fails, and has then changed nothing, unless it says otherwise.
class FileSystem {
  public:
    virtual ~FileSystem() = default;

    /// Opens a file, and makes an empty one where there is none.
    virtual std::unique_ptr<RandomAccessFile> open(const std::string& name) = 0;

    /// The same for a file of which nothing is wanted but its content: one that this user may not
    /// write is opened as well. Write nothing to it.
    virtual std::unique_ptr<RandomAccessFile> openForReading(const std::string& name) = 0;

    /// Opens, for reading, what an interrupted replaceContent() may have left under its `through`.
    /// Null where there is nothing, or a link, symbolic or hard: that would be another file.
    virtual std::unique_ptr<RandomAccessFile> openLeftover(const std::string& name) = 0;

    /// Whether there is a plain file of that name; never fails.
    virtual bool hasFile(const std::string& name) const = 0;

    /// Takes the name away, of a file or a link. There need not be one.
    virtual void remove(const std::string& name) = 0;

    /// Gives a file the name of another one in the same folder, which it replaces. At every
    /// moment there is one of the two under that name.
    virtual void replace(const std::string& from, const std::string& to) = 0;

    /// Gives a file other content at one stroke: at every moment, and after a loss of power, it
    /// holds either all of the old or all of the new. The new content is put together in a file
    /// without a name, or where there is no such thing in the file `through`, and is called
    /// `through`, a name in the same folder, just before it is renamed. A file or link that bears
    /// that name goes, perhaps also when the content cannot be replaced then; what a link leads to
    /// is never touched.
    virtual void replaceContent(const std::string& name, std::string_view bytes,
                                const std::string& through) = 0;
};

}  // namespace skylob
