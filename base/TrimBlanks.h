#pragma once

#include <string_view>

namespace skylob {

/// `text` without the blanks at its two ends. Only the blank counts, no tab and no line break.
inline std::string_view trimBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace skylob
