#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace skylob {

/// A colour of 24 bits, black at first. It is not a number: numbers have red in the low byte here
/// and blue there, so which one is meant is said where a number becomes a colour.
class Colour {
  public:
    constexpr Colour() = default;

    /// From 0xBBGGRR, as the rules and the properties of buttons have colours. What stands above
    /// the 24 bits does not count.
    static constexpr Colour fromBgr(std::uint32_t bgr) { return Colour{bgr & 0xFFFFFF}; }

    /// From 0xRRGGBB, as pixels and drawings have them; the same holds.
    static constexpr Colour fromRgb(std::uint32_t rgb) { return Colour{swapped(rgb)}; }

    constexpr int red() const { return static_cast<int>(m_bgr & 0xFF); }
    constexpr int green() const { return static_cast<int>(m_bgr >> 8 & 0xFF); }
    constexpr int blue() const { return static_cast<int>(m_bgr >> 16); }
    constexpr std::uint32_t bgr() const { return m_bgr; }

    /// An opaque pixel, 0xFFRRGGBB.
    constexpr std::uint32_t pixel() const { return 0xFF000000u | swapped(m_bgr); }

    bool operator==(const Colour&) const = default;

  private:
    explicit constexpr Colour(std::uint32_t bgr) : m_bgr{bgr} {}
    static constexpr std::uint32_t swapped(std::uint32_t number) {
        return (number & 0xFF) << 16 | (number & 0xFF00) | (number >> 16 & 0xFF);
    }

    std::uint32_t m_bgr = 0;
};

constexpr Colour kBlack;
constexpr Colour kWhite = Colour::fromBgr(0xFFFFFF);
constexpr Colour kYellow = Colour::fromBgr(0x00FFFF);
constexpr Colour kRed = Colour::fromBgr(0x0000FF);
constexpr Colour kMagenta = Colour::fromBgr(0xFF00FF);
constexpr Colour kCyan = Colour::fromBgr(0xFFFF00);

/// A colour of the classic 16-colour palette, by its index 0 (black) to 15 (bright white).
/// Another index throws std::out_of_range.
constexpr Colour paletteColour(int index) {
    constexpr std::array<std::uint32_t, 16> kPalette{
        0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
        0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
    return Colour::fromBgr(kPalette.at(static_cast<std::size_t>(index)));
}

}  // namespace skylob
