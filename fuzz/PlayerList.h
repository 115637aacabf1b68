#pragma once

#include <string>

#include "fuzz/FailingDisk.h"
#include "fuzz/Input.h"
#include "players/PlayerRecord.h"

namespace skylob::fuzz {

/// A list of players on a disk, and perhaps what an earlier rewriting has left beside it.
struct PlayerList {
    explicit PlayerList(Input& input) {
        disk.put(kName, input.text());
        disk.put(kLeftover, input.text());
    }

    std::string bytes() const { return disk.bytes(kName); }

    /// The rules' own view: half a record counts as one, with zeros for what is missing.
    static std::string wholeRecords(std::string bytes) {
        bytes.resize((bytes.size() + kRecordLength / 2) / kRecordLength * kRecordLength);
        return bytes;
    }
    static PlayerRecord recordOf(const std::string& list, std::size_t row) {
        const std::size_t at = row * kRecordLength;
        return unpackRecord(at < list.size() ? std::string_view{list}.substr(at) : "");
    }
    static std::string bytesOf(const PlayerRecord& record) {
        const auto packed = packRecord(record);
        return {packed.data(), packed.size()};
    }

    /// What a list has behind it that is written now.
    std::string leftBeyond(std::size_t length) const {
        const std::string left = disk.bytes(kLeftover);
        return left.size() > length ? left.substr(length) : std::string{};
    }

    /// The next calls are made on a disk as the input wants it.
    void failAsToldBy(Input& input) {
        const int first = input.from(1, 16);
        disk.fail(input.flag() ? input.byte() : 0, first);
    }

    static constexpr const char* kName = "Skylob.Data";
    static constexpr const char* kLeftover = "TempFile.$$$";
    FailingDisk disk;
};

}  // namespace skylob::fuzz
