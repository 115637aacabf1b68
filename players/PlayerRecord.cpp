#include "players/PlayerRecord.h"

#include <algorithm>

#include "base/TrimBlanks.h"
#include "players/Windows1252.h"

namespace skylob {

namespace {

constexpr std::size_t kSetsPlayedAt = 20, kSetsWonAt = 22, kAverageScoreAt = 24, kRankingAt = 26,
                      kSpareAt = 28;

using RecordBytes = std::span<char, kRecordLength>;

void putNumber(RecordBytes bytes, std::size_t at, std::int16_t number) {
    const auto bits = static_cast<std::uint16_t>(number);
    bytes[at] = static_cast<char>(bits & 0xFF);
    bytes[at + 1] = static_cast<char>(bits >> 8);
}

std::int16_t numberAt(std::string_view bytes, std::size_t at) {
    const unsigned low = static_cast<unsigned char>(bytes[at]);
    const unsigned high = static_cast<unsigned char>(bytes[at + 1]);
    return static_cast<std::int16_t>(high << 8 | low);
}

}  // namespace

std::string nameOf(const PlayerRecord& record) {
    // Trimmed before as well: a list may have to be searched for a name, and most are short.
    const std::string name = fromWindows1252(trimBlanks({record.Name.data(), record.Name.size()}));
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

void packRecord(const PlayerRecord& record, RecordBytes bytes) {
    std::copy(record.Name.begin(), record.Name.end(), bytes.begin());
    putNumber(bytes, kSetsPlayedAt, record.SetsPlayed);
    putNumber(bytes, kSetsWonAt, record.SetsWon);
    putNumber(bytes, kAverageScoreAt, record.AverageScore);
    putNumber(bytes, kRankingAt, record.Ranking);
    bytes[kSpareAt] = static_cast<char>(record.Spare);
}

std::array<char, kRecordLength> packRecord(const PlayerRecord& record) {
    std::array<char, kRecordLength> bytes;
    packRecord(record, bytes);
    return bytes;
}

void unpackRecord(std::string_view bytes, PlayerRecord& record) {
    std::array<char, kRecordLength> filledUp{};
    if (bytes.size() < kRecordLength) {
        std::copy(bytes.begin(), bytes.end(), filledUp.begin());
        bytes = {filledUp.data(), filledUp.size()};
    }
    std::copy_n(bytes.begin(), kNameLength, record.Name.begin());
    record.SetsPlayed = numberAt(bytes, kSetsPlayedAt);
    record.SetsWon = numberAt(bytes, kSetsWonAt);
    record.AverageScore = numberAt(bytes, kAverageScoreAt);
    record.Ranking = numberAt(bytes, kRankingAt);
    record.Spare = static_cast<std::uint8_t>(bytes[kSpareAt]);
}

PlayerRecord unpackRecord(std::string_view bytes) {
    PlayerRecord record;
    unpackRecord(bytes, record);
    return record;
}

}  // namespace skylob
