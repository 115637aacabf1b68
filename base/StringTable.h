#pragma once

#include <map>
#include <string>
#include <string_view>

namespace skylob {

/// The program's longer texts, by number.
class StringTable {
  public:
    /// Takes in texts, UTF-8, one a line: a number, one blank, and the text up to the end of the
    /// line. Lines that are empty or begin with "#" are for those who read the file. Throws
    /// std::invalid_argument for any other line and for a number that is there already.
    void addLines(std::string_view lines);

    /// Takes in one text, which may have several lines, without the line break at its end. Throws
    /// std::invalid_argument where there is one of that number.
    void add(int number, std::string_view text);

    /// Throws std::out_of_range where there is no such text.
    const std::string& text(int number) const { return m_texts.at(number); }

  private:
    std::map<int, std::string> m_texts;
};

}  // namespace skylob
