#pragma once

#include "base/basSkylob.h"
#include "players/PlayerFile.h"
#include "tests/support/FileFakes.h"

namespace skylob::test {

/// The figures of somebody who has never played.
inline const std::string kNew(9, '\0');

/// A player list in a folder of its own.
struct PlayersRig {
    void put(const std::string& list) { putBytes(path, list); }
    std::string bytes() const { return bytesOf(path); }

    /// A player as the file has it now.
    ListedPlayer listed(int number) const {
        const auto offset = static_cast<std::size_t>(number - 1) * kRecordLength;
        return {number, unpackRecord(bytes().substr(offset, kRecordLength))};
    }
    bool add(std::string_view name) { return file.addPlayer(name); }
    bool rename(int number, std::string_view name) {
        return file.renamePlayer(listed(number), name);
    }
    bool remove(int number) { return file.deletePlayer(listed(number)); }

    TempFolder folder;
    std::string path = folder / "Skylob.Data";
    FailingFiles files;
    PlayerFile file{files, path};
    basSkylob shared;
};

}  // namespace skylob::test
