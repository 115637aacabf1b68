#include "look/Theme.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace skylob {

namespace {

std::string quotedFamilies() {
    std::string list;
    for (const char* family : kFontFamilies)
        list.append(list.empty() ? "\"" : ", \"").append(family).append("\"");
    return list;
}

std::string valueOf(std::string_view name) {
    if (name == "families") return quotedFamilies();
    if (name == "text-size") return std::to_string(kTextSize) + "px";
    if (name == "large-size") return std::to_string(kLargeSize) + "px";
    if (name == "heading-size") return std::to_string(kHeadingSize) + "px";
    const auto colour = findThemeColour(name);
    if (!colour) throw std::out_of_range("the theme has no @" + std::string{name});
    char text[8];
    std::snprintf(text, sizeof text, "#%06X", colour->pixel() & 0xFFFFFF);
    return text;
}

}  // namespace

std::string withTheme(std::string_view styleSheet) {
    constexpr std::string_view kNameLetters = "abcdefghijklmnopqrstuvwxyz0123456789-";
    std::string result;
    while (true) {
        const auto at = styleSheet.find('@');
        result += styleSheet.substr(0, at);
        if (at == std::string_view::npos) return result;
        styleSheet.remove_prefix(at + 1);
        const auto end = std::min(styleSheet.find_first_not_of(kNameLetters), styleSheet.size());
        result += valueOf(styleSheet.substr(0, end));
        styleSheet.remove_prefix(end);
    }
}

}  // namespace skylob
