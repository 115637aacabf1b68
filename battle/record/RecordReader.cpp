#include <algorithm>
#include <charconv>
#include <fstream>
#include <limits>
#include <utility>

#include "battle/record/BattleRecord.h"
#include "battle/record/RecordWords.h"

namespace skylob {

namespace {

constexpr std::size_t kLargestFile = 4 << 20;
constexpr std::size_t kLongestName = 80;  // bytes; players have 20 letters at most
constexpr int kMostRounds = 20, kStrongestRecordedWind = 39;
constexpr int kFarthestRecorded = 100'000;         // a shell may come down beside the field
constexpr int kMostKills = 1'000'000;              // of a set
constexpr std::uint64_t kMostDraws = 100'000'000;  // going that far takes a second or two
static_assert(kFirstRecordLine == 9);

/// A line that cannot be read; which one it is, is known above.
struct Unreadable {};

void require(bool isGood) {
    if (!isGood) throw Unreadable{};
}

/// The words of a line, which are parted by single blanks.
class LineReader {
  public:
    explicit LineReader(std::string_view line) : m_rest{line} {}

    std::string_view word() {
        require(!m_isDone);
        const std::size_t blank = m_rest.find(' ');
        const std::string_view found = m_rest.substr(0, blank);
        m_isDone = blank == std::string_view::npos;
        if (!m_isDone) m_rest.remove_prefix(blank + 1);
        return found;
    }
    void expect(std::string_view wanted) { require(word() == wanted); }

    template <typename Number>
    Number number(Number low, Number high, int base = 10) {
        const std::string_view text = word();
        Number value{};
        const auto [end, error] =
            std::from_chars(text.data(), text.data() + text.size(), value, base);
        require(error == std::errc{} && end == text.data() + text.size());
        require(value >= low && value <= high);
        return value;
    }
    int side() { return number(kLeftSide, kRightSide); }
    std::uint64_t draws() {
        expect("draws");
        return number<std::uint64_t>(0, kMostDraws);
    }
    /// A number behind its name.
    int number(std::string_view name, int low, int high) {
        expect(name);
        return number(low, high);
    }
    PerSide<int> both(std::string_view name, int low, int high) {
        const int left = number(name, low, high);
        return {left, number(low, high)};
    }
    FieldPoint point() {
        const int x = number(-kFarthestRecorded, kFarthestRecorded);
        return {x, number(-kFarthestRecorded, kFarthestRecorded)};
    }
    template <typename Choice, std::size_t count>
    Choice oneOf(const std::array<std::string_view, count>& words) {
        const auto found = std::find(words.begin(), words.end(), word());
        require(found != words.end());
        return static_cast<Choice>(found - words.begin());
    }

    bool isDone() const { return m_isDone; }

  private:
    std::string_view m_rest;
    bool m_isDone = false;
};

RoundLine readRound(LineReader& from) {
    RoundLine line;
    line.round = from.number(1, kMostRounds);
    line.draws = from.draws();
    line.shooter = from.number("shooter", kLeftSide, kRightSide);
    line.wind = from.number("wind", -kStrongestRecordedWind, kStrongestRecordedWind);
    from.expect("pieces");
    for (const int side : kSides) line.pieces[side] = from.point();
    from.expect("field");
    line.field = from.number<std::uint64_t>(0, std::numeric_limits<std::uint64_t>::max(), 16);
    return line;
}

ShotLine readShot(LineReader& from) {
    ShotLine line;
    line.side = from.side();
    line.draws = from.draws();
    line.speed = from.number("speed", kSpeedRange.minimum, kSpeedRange.maximum);
    line.angle = from.number("angle", kAngleRange.minimum, kAngleRange.maximum);
    from.expect("at");
    line.at = from.point();
    line.landing = from.oneOf<Landing>(kLandingWords);
    line.killed = from.number("killed", 0, kMostKills);
    line.deserted = from.number("deserted", 0, kMostKills);
    line.menLeft = from.both("men", 0, kMostKills);
    return line;
}

BoxLine readBox(LineReader& from) {
    BoxLine line;
    line.box = from.oneOf<Box>(kBoxWords);
    line.ticked = from.oneOf<int>(kTickWords) == 1;
    line.draws = from.draws();
    line.wind = from.number("wind", -kStrongestRecordedWind, kStrongestRecordedWind);
    return line;
}

EndLine readEnd(LineReader& from) {
    const PerSide<int> won = from.both("rounds", 0, kMostRounds);
    return {won, from.both("kills", 0, kMostKills)};
}

RecordLine readLine(std::string_view text) {
    LineReader from{text};
    const std::string_view kind = from.word();
    const auto line = [&]() -> RecordLine {
        if (kind == "round") return readRound(from);
        if (kind == "shot") return readShot(from);
        if (kind == "box") return readBox(from);
        if (kind == "no-men") return NoMenLine{from.side()};
        if (kind == "over") return readEnd(from);
        require(kind == "left");
        return LeftLine{};
    }();
    require(from.isDone());
    return line;
}

bool isLast(const RecordLine& line) {
    return std::holds_alternative<EndLine>(line) || std::holds_alternative<LeftLine>(line);
}

/// Takes a recording line by line.
class RecordReader {
  public:
    explicit RecordReader(std::string_view text) : m_rest{text} {}

    BattleRecord read() {
        try {
            readHeader();
            while (m_record.lines.empty() || !isLast(m_record.lines.back())) addLine();
        } catch (const Unreadable&) {
            fail();
        }
        if (!m_rest.empty()) throw RecordError{"something follows its last line"};
        return std::move(m_record);
    }

  private:
    std::string_view nextLine() {
        ++m_number;
        const std::size_t end = m_rest.find('\n');
        m_isCutOff = end == std::string_view::npos;
        require(!m_isCutOff);
        const std::string_view line = m_rest.substr(0, end);
        m_rest.remove_prefix(end + 1);
        return line;
    }

    [[noreturn]] void fail() const {
        if (m_number == 1) throw RecordError{"it is not the recording of a battle"};
        const std::string line = "line " + std::to_string(m_number);
        throw RecordError{m_isCutOff ? "it ends at " + line + ", before the end of the set"
                                     : line + " cannot be read"};
    }

    void readHeader() {
        RecordHeader& header = m_record.header;
        require(nextLine() == kRecordTitle);
        header.seed =
            headerNumber<std::uint64_t>("seed", 0, std::numeric_limits<std::uint64_t>::max());
        for (const int side : kSides) header.names[side] = name("player-" + std::to_string(side));
        LineReader level{nextLine()};
        level.expect("level");
        header.skillLevel = kGoodSkill + level.oneOf<int>(kLevelWords);
        require(level.isDone());
        header.rounds = headerNumber("rounds", 1, kMostRounds);
        header.gameSpeed = headerNumber("speed", kGameSpeedRange.minimum, kGameSpeedRange.maximum);
        LineReader boxes{nextLine()};
        boxes.expect("ticked");
        while (!boxes.isDone()) header.ticked.push_back(boxes.oneOf<Box>(kBoxWords));
    }

    template <typename Number>
    Number headerNumber(std::string_view name, Number low, Number high) {
        LineReader line{nextLine()};
        line.expect(name);
        const Number value = line.number(low, high);
        require(line.isDone());
        return value;
    }

    /// What stands behind the key, blanks and all.
    std::string name(const std::string& key) {
        const std::string_view line = nextLine();
        require(line.substr(0, key.size() + 1) == key + " ");
        const std::string_view name = line.substr(key.size() + 1);
        require(name.size() <= kLongestName);
        return std::string{name};
    }

    void addLine() {
        const RecordLine line = readLine(nextLine());
        require(!m_record.lines.empty() || std::holds_alternative<RoundLine>(line));
        if (const auto draws = drawsOf(line)) {
            require(*draws >= m_draws);  // the generator never goes back
            m_draws = *draws;
        }
        m_record.lines.push_back(line);
    }

    std::string_view m_rest;
    std::size_t m_number = 0;
    bool m_isCutOff = false;
    std::uint64_t m_draws = 0;
    BattleRecord m_record;
};

}  // namespace

BattleRecord readRecord(std::string_view text) {
    return RecordReader{text}.read();
}

BattleRecord readRecordFile(const std::string& name) {
    std::ifstream file{name, std::ios::binary};
    std::string text(kLargestFile + 1, '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    if (file) throw RecordError{"it is too large for the recording of a battle"};
    if (!file.eof()) throw RecordError{"it cannot be read"};
    text.resize(static_cast<std::size_t>(file.gcount()));
    return readRecord(text);
}

}  // namespace skylob
