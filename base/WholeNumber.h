#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace skylob {

/// The number that the text is, in decimal digits with at most a minus before them; nothing where
/// it is anything else or too large.
inline std::optional<int> wholeNumber(std::string_view text) {
    int number = 0;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    if (error != std::errc{} || end != last) return std::nullopt;
    return number;
}

}  // namespace skylob
