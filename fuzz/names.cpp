// Names, typed or found in a damaged file. A name on file stays what it is when it is stored again,
// has 20 letters at most and no blank at its ends, and a record comes back from its 29 bytes.
#include "base/TrimBlanks.h"
#include "fuzz/Input.h"
#include "players/PlayerRecord.h"
#include "players/Windows1252.h"

using namespace skylob;
using fuzz::require;

static void checkTyped(std::string_view typed) {
    const std::string name = nameOnFile(typed);
    require(nameOnFile(name) == name, "a name that was stored is stored again as it is");
    require(trimBlanks(name) == name, "a name has no blank at its ends");
    require(toWindows1252(name).size() <= kNameLength, "a name has 20 letters at most");
}

static void checkShown(std::string_view bytes) {
    const std::string back = toWindows1252(fromWindows1252(bytes));
    require(back.size() == bytes.size(), "each byte shows as one character");
    for (std::size_t i = 0; i < back.size(); ++i)
        require(back[i] == bytes[i] || back[i] == ' ', "a byte shows as itself or as a blank");
}

static void checkRecord(std::string_view bytes) {
    const PlayerRecord record = unpackRecord(bytes);
    const auto packed = packRecord(record);
    std::string whole{bytes.substr(0, kRecordLength)};
    whole.resize(kRecordLength);
    require(std::string_view(packed.data(), packed.size()) == whole, "a record keeps its bytes");
    PlayerRecord renamed = record;
    setName(renamed, nameOf(record));
    require(nameOf(renamed) == nameOf(record), "a name may be given again");
    renamed.Name = record.Name;
    require(renamed == record, "another name changes nothing else");
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view text = fuzz::Input{bytes, size}.rest();
    checkTyped(text);
    checkShown(text);
    checkRecord(text);
    return 0;
}
