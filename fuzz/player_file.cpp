// The player list on a disk whose calls fail: players are added, renamed and deleted. Done means
// that the list on the disk is the new one, an error that it is all of the old or all of the new
// one, and a refusal that nothing is written.
#include "fuzz/PlayerList.h"
#include "players/PlayerFile.h"

using namespace skylob;
using fuzz::PlayerList;
using fuzz::require;

/// The same to whatever order of calls: `list` with this player's record changed or taken out.
static std::string withName(std::string list, std::size_t row, const std::string& name) {
    list.resize(std::max(list.size(), (row + 1) * kRecordLength));
    PlayerRecord record = PlayerList::recordOf(list, row);
    setName(record, name);
    return list.replace(row * kRecordLength, kRecordLength, PlayerList::bytesOf(record));
}

static std::string without(const std::string& list, std::size_t row) {
    std::string others;
    std::int16_t place = 0;
    for (std::size_t other = 0; other < list.size() / kRecordLength; ++other) {
        if (other == row) continue;
        PlayerRecord record = PlayerList::recordOf(list, other);
        ++place;
        record.Ranking = record.SetsPlayed < 1 ? std::int16_t{0} : place;
        others += PlayerList::bytesOf(record);
    }
    return others;
}

/// Changes the list once and says whether that is reported as done; nothing after an error.
template <typename Change>
static void checkChange(const PlayerList& list, const std::string& changed, Change change) {
    const std::string before = list.bytes();
    const auto isNew = [&] { return PlayerList::wholeRecords(list.bytes()) == changed; };
    try {
        if (change() == ListChange::Done)
            require(isNew(), "what is done is on the disk");
        else
            require(list.bytes() == before, "what is refused is not on the disk");
    } catch (const FileError&) {
        require(list.bytes() == before || isNew(), "the list is wholly the old or the new one");
    }
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::Input input{bytes, size};
    PlayerList list{input};
    const std::string first = PlayerList::wholeRecords(list.bytes());
    PlayerFile file{list.disk, PlayerList::kName};
    while (!input.isOver()) {
        const std::string now = PlayerList::wholeRecords(list.bytes());
        const int kind = input.from(0, 2), number = input.from(0, 12);
        const std::string name = input.line();
        const std::string& listed = input.flag() ? first : now;  // an old list, or the present one
        const auto row = static_cast<std::size_t>(std::max(number, 1) - 1);
        const ListedPlayer player{number, PlayerList::recordOf(listed, row)};
        list.failAsToldBy(input);
        if (kind == 0) {
            const std::string longer = withName(now, now.size() / kRecordLength, name);
            checkChange(list, longer, [&] { return file.addPlayer(name); });
        } else if (kind == 1) {
            checkChange(list, withName(now, row, name),
                        [&] { return file.renamePlayer(player, name); });
        } else {
            std::string shorter = without(now, row);
            if (!shorter.empty()) shorter += list.leftBeyond(shorter.size());
            checkChange(list, PlayerList::wholeRecords(shorter),
                        [&] { return file.deletePlayer(player); });
        }
    }
    return 0;
}
