#include "battle/record/BattleRecord.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "battle/record/RecordWords.h"

namespace skylob {

namespace {

std::string hexadecimal(std::uint64_t number) {
    std::array<char, 16> digits{};
    const auto [end, error] =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, 16);
    return {digits.data(), end};
}

/// A line, word by word.
class LineText {
  public:
    explicit LineText(std::string_view word) : m_text{word} {}

    LineText& word(std::string_view word) {
        m_text += ' ';
        m_text += word;
        return *this;
    }
    template <typename Number>
    LineText& number(Number number) {
        return word(std::to_string(number));
    }
    LineText& both(const PerSide<int>& of) { return number(of[1]).number(of[2]); }
    LineText& point(FieldPoint at) { return number(at.x).number(at.y); }

    std::string text() const { return m_text + '\n'; }

  private:
    std::string m_text;
};

template <std::size_t count, typename Choice>
std::string_view wordOf(const std::array<std::string_view, count>& words, Choice choice) {
    return words.at(static_cast<std::size_t>(choice));
}

/// A list that was changed by others may hold anything.
std::string inOneLine(std::string name) {
    std::replace(name.begin(), name.end(), '\n', '?');
    return name;
}

/// How each kind of line is written.
struct Writer {
    LineText operator()(const RoundLine& line) const {
        LineText text{"round"};
        text.number(line.round).word("draws").number(line.draws).word("shooter");
        text.number(line.shooter).word("wind").number(line.wind).word("pieces");
        for (const int side : kSides) text.point(line.pieces[side]);
        return text.word("field").word(hexadecimal(line.field));
    }
    LineText operator()(const ShotLine& line) const {
        LineText text{"shot"};
        text.number(line.side).word("draws").number(line.draws).word("speed").number(line.speed);
        text.word("angle").number(line.angle).word("at").point(line.at);
        text.word(wordOf(kLandingWords, line.landing)).word("killed").number(line.killed);
        return text.word("deserted").number(line.deserted).word("men").both(line.menLeft);
    }
    LineText operator()(const BoxLine& line) const {
        LineText text{"box"};
        text.word(wordOf(kBoxWords, line.box)).word(wordOf(kTickWords, line.ticked));
        return text.word("draws").number(line.draws).word("wind").number(line.wind);
    }
    LineText operator()(const NoMenLine& line) const {
        return LineText{"no-men"}.number(line.side);
    }
    LineText operator()(const EndLine& line) const {
        return LineText{"over"}.word("rounds").both(line.roundsWon).word("kills").both(line.kills);
    }
    LineText operator()(const LeftLine&) const { return LineText{"left"}; }
};

class Fingerprint {
  public:
    void add(int number) {
        // FNV-1a, a byte at a time.
        for (int shift = 0; shift < 32; shift += 8) {
            m_sum ^= static_cast<std::uint32_t>(number) >> shift & 0xff;
            m_sum *= 0x100000001b3;
        }
    }
    void add(Colour colour) { add(static_cast<int>(colour.bgr())); }
    std::uint64_t sum() const { return m_sum; }

  private:
    std::uint64_t m_sum = 0xcbf29ce484222325;
};

}  // namespace

std::string textOf(const RecordHeader& header) {
    const auto level = header.skillLevel - kGoodSkill;
    std::string text = LineText{kRecordTitle}.text() + LineText{"seed"}.number(header.seed).text();
    text += LineText{"player-1"}.word(inOneLine(header.names[1])).text();
    text += LineText{"player-2"}.word(inOneLine(header.names[2])).text();
    text += LineText{"level"}.word(wordOf(kLevelWords, level)).text();
    text += LineText{"rounds"}.number(header.rounds).text();
    text += LineText{"speed"}.number(header.gameSpeed).text();
    LineText ticked{"ticked"};
    for (const Box box : header.ticked) ticked.word(wordOf(kBoxWords, box));
    return text + ticked.text();
}

std::string textOf(const RecordLine& line) {
    return std::visit(Writer{}, line).text();
}

std::optional<std::uint64_t> drawsOf(const RecordLine& line) {
    if (const auto* round = std::get_if<RoundLine>(&line)) return round->draws;
    if (const auto* shot = std::get_if<ShotLine>(&line)) return shot->draws;
    if (const auto* box = std::get_if<BoxLine>(&line)) return box->draws;
    return std::nullopt;
}

std::uint64_t fingerprint(const Battlefield& field) {
    Fingerprint print;
    for (const int height : field.TerrainHeight) print.add(height);
    for (const auto& [x, y, colour] : field.stars) {
        print.add(x);
        print.add(y);
        print.add(colour);
    }
    for (const int number : {field.MoonX, field.moonY, field.MoonOffset}) print.add(number);
    print.add(field.groundColour);
    return print.sum();
}

}  // namespace skylob
