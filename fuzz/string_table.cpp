// Files of numbered texts. One that is taken in holds each text under its number, byte by byte, and
// others are refused by an invalid_argument and nothing else.
#include <stdexcept>

#include "base/StringTable.h"
#include "fuzz/Input.h"

using namespace skylob;

static bool takesIn(StringTable& table, std::string_view lines) {
    try {
        table.addLines(lines);
        return true;
    } catch (const std::invalid_argument&) {
        return false;
    }
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::Input input{bytes, size};
    const std::string_view lines = fuzz::Input{input}.rest();
    StringTable table;
    if (!takesIn(table, lines)) return 0;
    while (!input.isOver()) {
        const std::string line = input.line();
        if (line.empty() || line.starts_with('#')) continue;
        const std::size_t blank = line.find(' ');
        fuzz::require(blank != std::string::npos && blank > 0, "a line has a number and a blank");
        fuzz::require(table.text(std::stoi(line)) == line.substr(blank + 1),
                      "a text is as written");
        fuzz::require(!takesIn(table, line), "no number is taken twice");
    }
    return 0;
}
