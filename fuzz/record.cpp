// Recordings of any text. One that is read can be written and is then read as the same, it can be
// played to its end or to where it differs, and others are refused by a RecordError and nothing
// else.
#include <optional>

#include "battle/record/BattleReplay.h"
#include "fuzz/Input.h"

using namespace skylob;
using fuzz::require;

static std::optional<BattleRecord> readFrom(std::string_view text) {
    try {
        return readRecord(text);
    } catch (const RecordError&) {
        return std::nullopt;
    }
}

static std::string written(const BattleRecord& record) {
    std::string text = textOf(record.header);
    for (const RecordLine& line : record.lines) text += textOf(line);
    return text;
}

/// Numbers drawn far ahead take seconds.
static bool isSoonPlayed(const BattleRecord& record) {
    return std::ranges::all_of(
        record.lines, [](const RecordLine& line) { return drawsOf(line).value_or(0) < 50'000; });
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const auto record = readFrom(fuzz::Input{bytes, size}.rest());
    if (!record) return 0;
    const std::string text = written(*record);
    const auto again = readFrom(text);
    require(again && again->lines == record->lines, "a recording is read as it was written");
    require(written(*again) == text, "its header, too");
    if (!isSoonPlayed(*record)) return 0;
    const auto difference = replayWithoutScreen(*record);
    require(!difference || difference->line < kFirstRecordLine + record->lines.size(),
            "a difference is in one of its lines");
    return 0;
}
