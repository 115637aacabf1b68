// A set is recorded on a disk whose calls fail. No record is lost, doubled or torn: the list is in
// its new order, with places and the two results, or each record stands where it was, old or
// counted.
#include <vector>

#include "base/TrimBlanks.h"
#include "fuzz/PlayerList.h"
#include "players/Ranking.h"
#include "players/SetResult.h"

using namespace skylob;
using fuzz::PlayerList;
using fuzz::require;
using Records = std::vector<PlayerRecord>;

static Records recordsOf(const std::string& list) {
    Records records;
    for (std::size_t row = 0; row < list.size() / kRecordLength; ++row)
        records.push_back(PlayerList::recordOf(list, row));
    return records;
}

static Records counted(Records records, const basSkylob& shared) {
    for (PlayerRecord& record : records) {
        const std::string name = nameOf(record);
        for (const int side : kSides)
            if (name == trimBlanks(shared.PlayerName[side]))
                countSet(record, SetScore(shared, side), side == shared.Winner);
    }
    return records;
}

/// Their bytes without their places, sorted.
static std::vector<std::string> bag(Records records) {
    std::vector<std::string> all;
    for (PlayerRecord& record : records) {
        record.Ranking = 0;
        all.push_back(PlayerList::bytesOf(record));
    }
    std::ranges::sort(all);
    return all;
}

static bool isRanked(Records now, const Records& wanted) {
    if (now.size() < wanted.size()) return false;
    now.resize(wanted.size());  // what follows has been left over
    std::string lastKey;
    for (std::size_t row = 0; row < now.size(); ++row) {
        const std::string key = formatKey(rankingKey(now[row]));
        const int place = now[row].SetsPlayed < 1 ? 0 : static_cast<int>(row + 1);
        if (key < lastKey || now[row].Ranking != place) return false;
        lastKey = key;
    }
    return bag(now) == bag(wanted);
}

static bool isOldOrCounted(const Records& now, const Records& old, const Records& wanted) {
    if (now.size() != old.size()) return false;
    for (std::size_t row = 0; row < now.size(); ++row)
        if (now[row] != old[row] && now[row] != wanted[row]) return false;
    return true;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::Input input{bytes, size};
    PlayerList list{input};
    basSkylob shared;
    for (const int side : kSides) {
        shared.PlayerName[side] = input.line();
        shared.RoundsWon[side] = input.from(0, 20);
        shared.TotalKills[side] = input.byte() * 8;
    }
    shared.Winner = setWinner(shared);
    const Records old = recordsOf(PlayerList::wholeRecords(list.bytes()));
    const Records wanted = counted(old, shared);
    const auto now = [&list] { return recordsOf(PlayerList::wholeRecords(list.bytes())); };
    const std::size_t length = old.size() * kRecordLength;
    const std::string beyond = list.leftBeyond(length);
    list.failAsToldBy(input);
    PlayerFile file{list.disk, PlayerList::kName};
    try {
        RecordSetResults(file, shared);
        require(old.size() == 1 ? now() == wanted : isRanked(now(), wanted), "the set is recorded");
        if (old.size() != 1)
            require(list.bytes().substr(length) == beyond, "leftover records stay in the list");
    } catch (const FileError&) {
        require(isRanked(now(), wanted) || isOldOrCounted(now(), old, wanted),
                "no record is lost or torn");
    }
    return 0;
}
