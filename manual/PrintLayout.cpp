#include "manual/PrintLayout.h"

#include <algorithm>

#include "base/basSkylob.h"

namespace skylob {

namespace {

// Inches.
constexpr double kMargin = 1.0;
constexpr double kTextWidth = 6.5;
constexpr double kLastParagraph = 8.0;
constexpr double kPageBottom = 8.8;
constexpr double kRoundingError = 1e-6;

/// Where the character that begins at `at` ends: its first byte and all that continue it.
std::size_t characterEnd(std::string_view text, std::size_t at) {
    do ++at;
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80);
    return at;
}

/// Where the word ends that begins at `at` or after the blanks there.
std::size_t wordEnd(std::string_view text, std::size_t at) {
    return std::min(text.find(' ', std::min(text.find_first_not_of(' ', at), text.size())),
                    text.size());
}

/// As many steps as fit on a line; 0 when not even the first one does.
template <typename Step>
std::size_t fittingEnd(std::string_view text, const PrintMeasures& measures, Step step) {
    std::size_t end = 0;
    while (end < text.size()) {
        const std::size_t next = step(text, end);
        if (measures.width(text.substr(0, next)) > kTextWidth + kRoundingError) break;
        end = next;
    }
    return end;
}

/// Takes the next line off a paragraph that is not empty.
std::string_view takeLine(std::string_view& paragraph, const PrintMeasures& measures) {
    std::size_t end = fittingEnd(paragraph, measures, wordEnd);
    if (end == 0) end = fittingEnd(paragraph, measures, characterEnd);
    if (end == 0) end = characterEnd(paragraph, 0);
    const std::string_view line = paragraph.substr(0, end);
    paragraph.remove_prefix(std::min(paragraph.find_first_not_of(' ', end), paragraph.size()));
    return line;
}

/// Takes the next paragraph off a text, without its line break and the blanks before it.
std::string_view takeParagraph(std::string_view& text) {
    std::string_view paragraph = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(paragraph.size() + 1, text.size()));
    return paragraph.substr(0, paragraph.find_last_not_of(" \r") + 1);
}

/// Fills one page after the other.
class Pages {
  public:
    Pages(std::string_view header, const PrintMeasures& measures)
        : m_header{header}, m_measures{measures} {
        begin();
    }

    void addParagraph(std::string_view paragraph) {
        // Empty lines begin no page: none would follow where the text ends with them.
        if (paragraph.empty() && (m_hasText || m_pages.size() == 1)) ++m_row;
        if (!paragraph.empty() && m_hasText && y(m_row) > kLastParagraph - kRoundingError) begin();
        while (!paragraph.empty()) addLine(takeLine(paragraph, m_measures));
    }

    std::vector<PrintedPage> take() { return std::move(m_pages); }

  private:
    double y(int row) const { return kMargin + row * m_measures.lineHeight; }

    void begin() {
        m_pages.emplace_back();
        m_hasText = false;
        m_row = 2;
        const std::string number = "(page " + std::to_string(m_pages.size()) + ")";
        const double afterHeader = kMargin + m_measures.width(m_header + " ");
        const double atTheRight = kMargin + kTextWidth - m_measures.width(number);
        m_pages.back().push_back({kMargin, kMargin, m_header});
        m_pages.back().push_back({std::max(afterHeader, atTheRight), kMargin, number});
    }

    void addLine(std::string_view line) {
        if (m_hasText && y(m_row + 1) > kPageBottom + kRoundingError) begin();
        m_pages.back().push_back({kMargin, y(m_row), std::string{line}});
        m_hasText = true;
        ++m_row;
    }

    std::string m_header;
    const PrintMeasures& m_measures;
    std::vector<PrintedPage> m_pages;
    int m_row = 0;  ///< of the next line, from 0, the header's
    bool m_hasText = false;
};

}  // namespace

std::vector<PrintedPage> layOutPages(std::string_view header, std::string_view text,
                                     const PrintMeasures& measures) {
    Pages pages{header, measures};
    while (!text.empty()) pages.addParagraph(takeParagraph(text));
    return pages.take();
}

std::string helpSectionHeader(std::string_view topic) {
    std::string header{kProgramTitle};
    header += ", Help Section: ";
    return header += topic;
}

}  // namespace skylob
