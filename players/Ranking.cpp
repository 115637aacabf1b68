#include "players/Ranking.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "base/TrimBlanks.h"
#include "players/SetResult.h"

namespace skylob {

namespace {

constexpr int kDecimals = 2, kFewestDigits = 4 + kDecimals;  // of a key's text

/// Goes round from 32,767 to -32,768.
std::int16_t wrapped(int number) {
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(number));
}

/// Enters a set into the records of its players.
class SetCounter {
  public:
    explicit SetCounter(const basSkylob& shared) : m_shared{shared} {
        for (const int side : kSides) m_names[side] = trimBlanks(shared.PlayerName[side]);
    }

    /// Counts it in the current record, of that number, if that is one of theirs.
    void count(PlayerFile& file, int number) const {
        const std::string name = nameOf(file.CurrentRecord);
        for (const int side : kSides) {
            if (name != m_names[side]) continue;
            countSet(file.CurrentRecord, SetScore(m_shared, side), side == m_shared.Winner);
            file.keepRecord(number);
        }
    }

  private:
    const basSkylob& m_shared;
    PerSide<std::string_view> m_names;
};

/// A key's text as numbers of eight characters each, which are in the order of the texts and sooner
/// compared. No key has more than two of them.
using KeyOrder = std::array<std::uint64_t, 2>;

KeyOrder keyOrder(std::string_view text) {
    KeyOrder order{};
    for (std::size_t at = 0; at < text.size(); ++at)
        order[at / 8] |= std::uint64_t{static_cast<unsigned char>(text[at])} << (56 - at % 8 * 8);
    return order;
}

/// Counts the set and returns the record numbers from the best player to the worst. Each record is
/// read once for both.
std::vector<int> countAndRank(PlayerFile& file, const basSkylob& shared) {
    const SetCounter set{shared};
    std::vector<std::pair<KeyOrder, int>> keys;
    keys.reserve(static_cast<std::size_t>(file.PlayerCount));
    for (int number = 1; number <= file.PlayerCount; ++number) {
        file.readRecord(number);
        set.count(file, number);
        // Quirk "ranked by text": who loses much has "1000.78", which comes after the "0999.99" of
        // those who have never played.
        keys.emplace_back(keyOrder(formatKey(rankingKey(file.CurrentRecord))), number);
    }
    // Equal texts stay in the order of the list: the record number decides.
    std::sort(keys.begin(), keys.end());
    std::vector<int> order;
    order.reserve(keys.size());
    for (const auto& [key, number] : keys) order.push_back(number);
    return order;
}

}  // namespace

void countSet(PlayerRecord& record, int setScore, bool won) {
    // The sum of all scores so far. Quirk "first average": none counts as 1.
    // Quirk "collapsing average": beyond 32,767 it turns negative and counts as 1, too.
    const int scores = std::max<int>(1, wrapped(record.SetsPlayed * record.AverageScore));
    record.SetsPlayed = wrapped(record.SetsPlayed + 1);
    record.AverageScore = wrapped((scores + setScore) / std::max<int>(1, record.SetsPlayed));
    if (won) record.SetsWon = wrapped(record.SetsWon + 1);
}

float rankingKey(const PlayerRecord& record) {
    constexpr float kNeverPlayed = 999.99F;
    const double played = record.SetsPlayed, won = record.SetsWon, average = record.AverageScore;
    if (played < 1) return kNeverPlayed;
    const double ratio = (won + 0.01) / (played + 0.01);
    return static_cast<float>((1000 - ratio * average) + (won + 0.05) + (played + 0.025));
}

std::string formatKey(float key) {
    // A hundred times a float is exact in double, so halves are seen as halves and rounded up.
    const auto hundredths =
        static_cast<std::uint64_t>(std::llround(std::fabs(static_cast<double>(key)) * 100));
    std::array<char, 32> text{};
    auto first = text.end();
    auto rest = hundredths;
    for (int digit = 0; digit < kFewestDigits || rest != 0; ++digit, rest /= 10) {
        if (digit == kDecimals) *--first = '.';
        *--first = static_cast<char>('0' + rest % 10);
    }
    if (key < 0 && hundredths != 0) *--first = '-';
    return {first, text.end()};
}

void RecordSetResults(PlayerFile& file, const basSkylob& shared) {
    PlayerFile::Session session{file};
    const std::vector<int> order = countAndRank(file, shared);
    // Quirk "unranked alone": there is nobody to be better than.
    if (file.PlayerCount != 1) file.rewrite(order);
    session.close();
}

}  // namespace skylob
