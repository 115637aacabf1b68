#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace skylob {

inline constexpr std::size_t kNameLength = 20;
inline constexpr std::size_t kRecordLength = 29;

/// What the player file holds of one player. Bytes from outside may say anything: every value of
/// every field is possible.
struct PlayerRecord {
    using Text = std::array<char, kNameLength>;

    Text Name = blankName();        ///< Windows code page 1252, filled up with blanks
    std::int16_t SetsPlayed = 0;    ///< sets that this player has finished
    std::int16_t SetsWon = 0;       ///< how many of them the player won
    std::int16_t AverageScore = 0;  ///< whole average of the set scores
    std::int16_t Ranking = 0;       ///< place in the ranking, 1 the best; 0 before the first set
    std::uint8_t Spare = 0;         ///< carried along

    bool operator==(const PlayerRecord&) const = default;

    static constexpr Text blankName() {
        Text name{};
        name.fill(' ');
        return name;
    }
};

/// The name in UTF-8, without the blanks at its ends; control characters show as blanks.
std::string nameOf(const PlayerRecord& record);

/// Takes a name in UTF-8. What the code page lacks becomes "?", and what is longer than 20
/// characters is cut.
void setName(PlayerRecord& record, std::string_view name);

/// What a name comes back as once a record has held it. Names are compared in this form.
std::string nameOnFile(std::string_view name);

/// A record as the file has it, in whole numbers of two bytes with the lower one first.
std::array<char, kRecordLength> packRecord(const PlayerRecord& record);
void packRecord(const PlayerRecord& record, std::span<char, kRecordLength> bytes);

/// Reads a record from up to 29 bytes; missing ones count as zero.
PlayerRecord unpackRecord(std::string_view bytes);
void unpackRecord(std::string_view bytes, PlayerRecord& record);

}  // namespace skylob
