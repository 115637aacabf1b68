#pragma once

#include "base/FileSystem.h"

namespace skylob {

/// The files on disk. Names without a folder mean the working directory. Only plain files can be
/// opened: a folder or a device in a file's place is an error.
class DiskFiles final : public FileSystem {
  public:
    std::unique_ptr<RandomAccessFile> open(const std::string& name) override;
    std::unique_ptr<RandomAccessFile> openForReading(const std::string& name) override;
    std::unique_ptr<RandomAccessFile> openLeftover(const std::string& name) override;
    bool hasFile(const std::string& name) const override;
    void remove(const std::string& name) override;
    void replace(const std::string& from, const std::string& to) override;
    void replaceContent(const std::string& name, std::string_view bytes,
                        const std::string& through) override;
};

}  // namespace skylob
