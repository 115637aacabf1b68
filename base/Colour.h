#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace skylob {

/// A 24-bit colour in blue-green-red order, 0x00BBGGRR: red stands in the low byte.
using Colour = std::uint32_t;

constexpr Colour kBlack = 0x000000;
constexpr Colour kWhite = 0xFFFFFF;
constexpr Colour kYellow = 0x00FFFF;
constexpr Colour kRed = 0x0000FF;
constexpr Colour kMagenta = 0xFF00FF;
constexpr Colour kCyan = 0xFFFF00;

/// A colour of the classic 16-colour palette, by its index 0 (black) to 15 (bright white).
/// Another index throws std::out_of_range.
constexpr Colour paletteColour(int index) {
    constexpr std::array<Colour, 16> kPalette{
        0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
        0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
    return kPalette.at(static_cast<std::size_t>(index));
}

}  // namespace skylob
