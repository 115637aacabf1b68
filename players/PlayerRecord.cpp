#include "players/PlayerRecord.h"

#include <algorithm>

#include "base/TrimBlanks.h"
#include "players/Windows1252.h"

namespace skylob {

namespace {

constexpr std::size_t kSetsPlayedAt = 20, kSetsWonAt = 22, kAverageScoreAt = 24, kRankingAt = 26,
                      kSpareAt = 28;

using Bytes = std::array<char, kRecordLength>;

void putNumber(Bytes& bytes, std::size_t at, std::int16_t number) {
    const auto bits = static_cast<std::uint16_t>(number);
    bytes[at] = static_cast<char>(bits & 0xFF);
    bytes[at + 1] = static_cast<char>(bits >> 8);
}

std::int16_t numberAt(const Bytes& bytes, std::size_t at) {
    const unsigned low = static_cast<unsigned char>(bytes[at]);
    const unsigned high = static_cast<unsigned char>(bytes[at + 1]);
    return static_cast<std::int16_t>(high << 8 | low);
}

}  // namespace

std::string nameOf(const PlayerRecord& record) {
    const std::string name = fromWindows1252({record.Name.data(), record.Name.size()});
    return std::string{trimBlanks(name)};
}

void setName(PlayerRecord& record, std::string_view name) {
    const std::string bytes = toWindows1252(name).substr(0, kNameLength);
    record.Name = PlayerRecord::blankName();
    std::copy(bytes.begin(), bytes.end(), record.Name.begin());
}

std::string nameOnFile(std::string_view name) {
    // Characters that show as blanks at the ends are no part of the name either.
    const std::string shown = fromWindows1252(toWindows1252(name));
    PlayerRecord record;
    setName(record, trimBlanks(shown));
    return nameOf(record);
}

Bytes packRecord(const PlayerRecord& record) {
    Bytes bytes{};
    std::copy(record.Name.begin(), record.Name.end(), bytes.begin());
    putNumber(bytes, kSetsPlayedAt, record.SetsPlayed);
    putNumber(bytes, kSetsWonAt, record.SetsWon);
    putNumber(bytes, kAverageScoreAt, record.AverageScore);
    putNumber(bytes, kRankingAt, record.Ranking);
    bytes[kSpareAt] = static_cast<char>(record.Spare);
    return bytes;
}

PlayerRecord unpackRecord(std::string_view bytes) {
    Bytes whole{};
    std::copy_n(bytes.begin(), std::min(bytes.size(), whole.size()), whole.begin());
    PlayerRecord record;
    std::copy_n(whole.begin(), kNameLength, record.Name.begin());
    record.SetsPlayed = numberAt(whole, kSetsPlayedAt);
    record.SetsWon = numberAt(whole, kSetsWonAt);
    record.AverageScore = numberAt(whole, kAverageScoreAt);
    record.Ranking = numberAt(whole, kRankingAt);
    record.Spare = static_cast<std::uint8_t>(whole[kSpareAt]);
    return record;
}

}  // namespace skylob
