#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/PerSide.h"
#include "battle/BattleState.h"
#include "battle/FieldPoint.h"
#include "battle/Landing.h"

/// A set written down: enough to play it again, and what came of each step. docs/recording.md tells
/// what it looks like as a text. `draws` is how many numbers had been drawn from the generator,
/// since it was seeded, before the rules drew for that line.
namespace skylob {

struct RecordHeader {
    std::uint64_t seed = 0;
    PerSide<std::string> names;
    int skillLevel = 0;  ///< as in basSkylob
    int rounds = 0, gameSpeed = 0;
    std::vector<Box> ticked;  ///< in the order of the boxes
};

struct RoundLine {
    int round = 0;
    std::uint64_t draws = 0;
    int shooter = 0, wind = 0;
    PerSide<FieldPoint> pieces;
    std::uint64_t field = 0;  ///< fingerprint(): of ground, sky and colours
    bool operator==(const RoundLine&) const = default;
};

struct ShotLine {
    int side = 0;
    std::uint64_t draws = 0;
    int speed = 0, angle = 0;
    FieldPoint at;  ///< where it came down
    Landing landing = Landing::Miss;
    int killed = 0, deserted = 0;  ///< by a near miss; after it
    PerSide<int> menLeft;          ///< after all that
    bool operator==(const ShotLine&) const = default;
};

struct BoxLine {
    Box box = Box::Sound;
    bool ticked = false;
    std::uint64_t draws = 0;
    int wind = 0;
    bool operator==(const BoxLine&) const = default;
};

/// A side had no men left to shoot.
struct NoMenLine {
    int side = 0;
    bool operator==(const NoMenLine&) const = default;
};

/// The set was played to its end.
struct EndLine {
    PerSide<int> roundsWon, kills;
    bool operator==(const EndLine&) const = default;
};

/// The set was left.
struct LeftLine {
    bool operator==(const LeftLine&) const = default;
};

using RecordLine = std::variant<RoundLine, ShotLine, BoxLine, NoMenLine, EndLine, LeftLine>;

struct BattleRecord {
    RecordHeader header;
    std::vector<RecordLine> lines;  ///< the last one is an EndLine or a LeftLine
};

/// The number of the first line after the header in the text, counted from 1.
inline constexpr std::size_t kFirstRecordLine = 9;

/// The header's lines, and any other line, each with its line feed.
std::string textOf(const RecordHeader& header);
std::string textOf(const RecordLine& line);

/// The draws before a line of chance; nothing for the others.
std::optional<std::uint64_t> drawsOf(const RecordLine& line);

/// A text is no recording; what() says why in a line without a full stop.
class RecordError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Reads a whole recording. Throws RecordError; whatever it returns can be played.
BattleRecord readRecord(std::string_view text);

/// The same from a file, of 4 MiB at most.
BattleRecord readRecordFile(const std::string& name);

/// Tells battlefields apart.
std::uint64_t fingerprint(const Battlefield& field);

}  // namespace skylob
