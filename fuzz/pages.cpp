// Texts on paper, in fonts of any size. No letter is lost or doubled, pages are numbered, lines lie
// within the margins unless a single character is too wide for them, and no page is blank.
#include "fuzz/Input.h"
#include "manual/PrintLayout.h"

using namespace skylob;
using fuzz::require;

static std::string lettersOf(std::string_view text) {
    std::string letters{text};
    std::erase_if(letters, [](char c) { return c == ' ' || c == '\n' || c == '\r'; });
    return letters;
}

static std::size_t charactersOf(std::string_view text) {
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; }));
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::Input input{bytes, size};
    const double letter = input.from(1, 250) / 25.0, lineHeight = input.from(1, 200) / 20.0;
    const auto width = [letter](std::string_view text) {
        return static_cast<double>(text.size()) * letter;
    };
    const std::string header = input.line();
    const std::string_view text = input.rest();
    const auto pages = layOutPages(header, text, {width, lineHeight});

    std::string printed;
    require(!pages.empty(), "there is a first page");
    for (std::size_t number = 1; number <= pages.size(); ++number) {
        const PrintedPage& page = pages[number - 1];
        require(page.at(0).text == header, "each page has the header");
        require(page.at(1).text == "(page " + std::to_string(number) + ")", "pages are numbered");
        require(page.size() > 2 || pages.size() == 1, "no page is blank");
        for (std::size_t i = 2; i < page.size(); ++i) {
            const PrintedText& line = page[i];
            require(charactersOf(line.text) <= 1 || width(line.text) < 6.51,
                    "lines are not too wide");
            require(i == 2 || line.y + lineHeight < 8.81 + lineHeight,
                    "lines end above the bottom");
            require(i == 2 || line.y > page[i - 1].y, "lines go downwards");
            printed += line.text;
        }
    }
    require(lettersOf(printed) == lettersOf(text), "each letter is printed once");
    return 0;
}
