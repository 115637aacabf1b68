#include "players/Windows1252.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace skylob {

namespace {

constexpr std::size_t kFirst = 0x80;
constexpr std::size_t kBehind = 0xA0;

/// What the bytes 0x80 to 0x9F stand for, 0 where that is nothing. All others stand for themselves.
constexpr std::array<char32_t, kBehind - kFirst> kSpecial{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr char32_t kNoCharacter = 0xFFFFFFFF;

constexpr std::size_t byteAt(std::string_view text, std::size_t place) {
    return static_cast<unsigned char>(text[place]);
}

/// The bytes of the character that starts with `lead`; 1 also where none can.
std::size_t lengthByLead(std::size_t lead) {
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 1;
}

/// Whether a character may be written in so many bytes: in no more than it needs, and not the
/// halves of another encoding's pairs.
bool isCharacter(char32_t character, std::size_t length) {
    if (length == 3) return character >= 0x800 && (character < 0xD800 || character > 0xDFFF);
    return length < 4 || (character >= 0x10000 && character <= 0x10FFFF);
}

/// Takes the first character off a text that has one.
char32_t takeCharacter(std::string_view& utf8) {
    const std::size_t lead = byteAt(utf8, 0);
    const std::size_t length = lengthByLead(lead);
    char32_t character =
        length == 1 ? static_cast<char32_t>(lead) : static_cast<char32_t>(lead & (0x7Fu >> length));
    bool whole = length <= utf8.size() && (length > 1 || lead < 0x80);
    for (std::size_t place = 1; whole && place < length; ++place) {
        whole = (byteAt(utf8, place) & 0xC0) == 0x80;
        character = character << 6 | static_cast<char32_t>(byteAt(utf8, place) & 0x3F);
    }
    whole = whole && isCharacter(character, length);
    utf8.remove_prefix(whole ? length : 1);
    return whole ? character : kNoCharacter;
}

/// Whether a byte is the same in both encodings and is shown as it is.
bool isPlain(char byte) {
    return byte >= 0x20 && byte < 0x7F;
}

void appendUtf8(std::string& text, char32_t character) {
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) return append(character);
    if (character < 0x800) {
        append(0xC0 | character >> 6);
    } else {  // no character of the code page needs more
        append(0xE0 | character >> 12);
        append(0x80 | (character >> 6 & 0x3F));
    }
    append(0x80 | (character & 0x3F));
}

}  // namespace

std::string toWindows1252(std::string_view utf8) {
    std::string bytes;
    while (!utf8.empty()) {
        const char32_t character = takeCharacter(utf8);
        const auto special = std::find(kSpecial.begin(), kSpecial.end(), character);
        if (character < kFirst || (character >= kBehind && character <= 0xFF))
            bytes += static_cast<char>(character);
        else if (special != kSpecial.end())
            bytes +=
                static_cast<char>(kFirst + static_cast<std::size_t>(special - kSpecial.begin()));
        else
            bytes += '?';
    }
    return bytes;
}

std::string fromWindows1252(std::string_view bytes) {
    if (std::all_of(bytes.begin(), bytes.end(), isPlain)) return std::string{bytes};
    std::string utf8;
    for (std::size_t place = 0; place < bytes.size(); ++place) {
        const std::size_t byte = byteAt(bytes, place);
        auto character = static_cast<char32_t>(byte);
        if (byte >= kFirst && byte < kBehind) character = kSpecial[byte - kFirst];
        const bool shown = character >= 0x20 && character != 0x7F;
        appendUtf8(utf8, shown ? character : U' ');
    }
    return utf8;
}

}  // namespace skylob
