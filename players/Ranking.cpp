#include "players/Ranking.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <utility>
#include <vector>

#include "base/TrimBlanks.h"
#include "players/SetResult.h"

namespace skylob {

namespace {

/// Goes round from 32,767 to -32,768.
std::int16_t wrapped(int number) {
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(number));
}

void countSetOf(PlayerFile& file, const basSkylob& shared) {
    for (int number = 1; number <= file.PlayerCount; ++number) {
        file.readRecord(number);
        const std::string name = nameOf(file.CurrentRecord);
        for (const int side : kSides) {
            if (name != trimBlanks(shared.PlayerName[side])) continue;
            countSet(file.CurrentRecord, SetScore(shared, side), side == shared.Winner);
            file.keepRecord(number);
        }
    }
}

/// The record numbers from the best player to the worst.
std::vector<int> rankingOrder(PlayerFile& file) {
    std::vector<std::pair<std::string, int>> keys;
    for (int number = 1; number <= file.PlayerCount; ++number) {
        file.readRecord(number);
        // Quirk "ranked by text": who loses much has "1000.78", which comes after the "0999.99" of
        // those who have never played.
        keys.emplace_back(formatKey(rankingKey(file.CurrentRecord)), number);
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
    const auto hundredths = std::llround(std::fabs(static_cast<double>(key)) * 100);
    char text[32];
    std::snprintf(text, sizeof text, "%s%04lld.%02lld", key < 0 && hundredths ? "-" : "",
                  hundredths / 100, hundredths % 100);
    return text;
}

void RecordSetResults(PlayerFile& file, const basSkylob& shared) {
    PlayerFile::Session session{file};
    countSetOf(file, shared);
    // Quirk "unranked alone": there is nobody to be better than.
    if (file.PlayerCount != 1) file.rewrite(rankingOrder(file));
    session.close();
}

}  // namespace skylob
