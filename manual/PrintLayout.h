#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace skylob {

/// A font as the printer measures it. All lengths are in inches.
struct PrintMeasures {
    std::function<double(std::string_view)> width;  ///< of a piece of a line, UTF-8
    double lineHeight = 0;                          ///< from one line's top to the next, above 0
};

/// A piece of text on a page, UTF-8, without line breaks. x and y are its upper left corner, in
/// inches from the upper left corner of the sheet.
struct PrintedText {
    double x = 0;
    double y = 0;
    std::string text;

    bool operator==(const PrintedText&) const = default;
};

using PrintedPage = std::vector<PrintedText>;

/// Breaks a text into pages with an inch of margin to the left and at the top, and 6.5 inches of
/// text width. Each page begins with the header to the left and "(page n)" to the right of one
/// line, n from 1, and a free line.
///
/// `text` is UTF-8; its line breaks, "\n" or "\r\n", end paragraphs, and empty lines stay. Lines
/// break at blanks, and within a word only where it is wider than the page. A page ends with the
/// first paragraph that reaches 8 inches, at 8.8 inches at the latest. An empty line between two
/// pages is left out. There is always a first page, and each page has at least one line.
std::vector<PrintedPage> layOutPages(std::string_view header, std::string_view text,
                                     const PrintMeasures& measures);

/// The header of a printed topic of the manual.
std::string helpSectionHeader(std::string_view topic);

}  // namespace skylob
