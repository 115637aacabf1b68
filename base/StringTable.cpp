#include "base/StringTable.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace skylob {

void StringTable::addLines(std::string_view lines) {
    while (!lines.empty()) {
        const std::string_view line = lines.substr(0, lines.find('\n'));
        lines.remove_prefix(std::min(line.size() + 1, lines.size()));
        if (line.empty() || line.front() == '#') continue;
        int number = 0;
        const char* const end = line.data() + line.size();
        const auto [blank, error] = std::from_chars(line.data(), end, number);
        if (error != std::errc{} || blank == end || *blank != ' ')
            throw std::invalid_argument{"not a numbered text: " + std::string{line}};
        add(number, {blank + 1, end});
    }
}

void StringTable::add(int number, std::string_view text) {
    if (text.ends_with('\n')) text.remove_suffix(1);
    if (!m_texts.try_emplace(number, text).second)
        throw std::invalid_argument{"two texts of number " + std::to_string(number)};
}

}  // namespace skylob
