#pragma once

#include "base/basSkylob.h"
#include "players/PlayerFile.h"
#include "tests/support/Fakes.h"
#include "tests/support/FileFakes.h"

namespace skylob::test {

/// The figures of somebody who has never played.
inline const std::string kNew(9, '\0');

/// The 29 bytes of a record, from the name and the nine bytes behind it.
inline std::string record(std::string name, const std::string& figures = kNew) {
    name.resize(20, ' ');
    return name + figures;
}

/// The same from small numbers: sets played, won, average, ranking.
inline std::string record(const std::string& name, int sets, int won, int average, int ranking,
                          int spare = 0) {
    std::string figures;
    for (const int number : {sets, won, average, ranking})
        figures.append(1, static_cast<char>(number)).append(1, '\0');
    return record(name, figures.append(1, static_cast<char>(spare)));
}

/// A player list in a folder of its own, and all else that the players' screens work with.
struct PlayersRig {
    /// A set is over that side 1 has won; a round has 100 men a side.
    void finishSet(PerSide<std::string> names, PerSide<int> rounds, PerSide<int> kills = {}) {
        shared.PlayerName = std::move(names);
        shared.RoundsWon = rounds;
        shared.TotalKills = kills;
        shared.Winner = 1;
    }
    void put(const std::string& list) { putBytes(path, list); }
    std::string bytes() const { return bytesOf(path); }
    /// What has happened since the last look.
    Log events() { return std::exchange(log, {}); }

    /// A player as the file has it now.
    ListedPlayer listed(int number) const {
        return {number, unpackRecord(bytes().substr(static_cast<std::size_t>(number - 1) * 29))};
    }
    ListChange add(std::string_view name) { return file.addPlayer(name); }
    ListChange rename(int number, const char* to) { return file.renamePlayer(listed(number), to); }
    ListChange remove(int number) { return file.deletePlayer(listed(number)); }

    const std::string ann = record("Ann"), bob = record("Bob"), cyd = record("Cyd");
    TempFolder folder;
    std::string path = folder / "Skylob.Data", tempPath = folder / "TempFile.$$$";
    FailingFiles files;
    PlayerFile file{files, path};
    basSkylob shared;
    Log log;
    HandSetClock clock;
    QueuedBoxes boxes{log};
    MemorySettings settings;
    RecordingSounds sounds{log};
    RecordingLinks links;
};

}  // namespace skylob::test
