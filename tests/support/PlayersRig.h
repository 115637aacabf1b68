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

    TempFolder folder;
    std::string path = folder / "Skylob.Data";
    FailingFiles files;
    PlayerFile file{files, path};
    basSkylob shared;
};

}  // namespace skylob::test
