#pragma once

#include <fstream>
#include <string>

namespace skylob {

/// The file that sets are written down in: it holds the last one that was begun.
class RecordFile {
  public:
    /// Makes the file where there is none; a recording that is there stays until a set begins. A
    /// name without a folder is meant from where the program stands now. Throws RecordError where
    /// it cannot be written, or is something else than a recording.
    explicit RecordFile(const std::string& name);

    /// Writes the text so that it is in the file even if the program ends at once. The first
    /// failure is told on standard error.
    void write(const std::string& text, bool startsSet);

  private:
    void checkContent() const;

    std::string m_name;
    std::ofstream m_file;
    bool m_hasFailed = false;
};

}  // namespace skylob
