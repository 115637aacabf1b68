#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Colour.h"
#include "base/PerSide.h"

/// What the screens look like, said once: the colours, families and sizes of what is painted, of
/// the style sheet and of the drawings.
namespace skylob {

/// The typefaces of all texts, the preferred one first.
inline constexpr std::array<const char*, 3> kFontFamilies{"Noto Sans", "Open Sans", "DejaVu Sans"};

/// Type sizes in logical pixels: of badges, of ordinary text, of names and remarks, of headings.
inline constexpr int kBadgeSize = 11, kTextSize = 13, kLargeSize = 17, kHeadingSize = 20;

struct ThemeColour {
    std::string_view name;
    std::uint32_t rgb;  ///< 0xRRGGBB
};

inline constexpr ThemeColour kThemeColours[] = {
    {"night", 0x0D1220},         // every window
    {"panel", 0x161E31},         // frames, strips, lists, texts
    {"alternate", 0x1A2338},     // every second row
    {"raised", 0x222D47},        // headers, menus, the speech bubble, a chosen name
    {"well", 0x090D18},          // grooves and empty boxes
    {"off", 0x111828},           // a disabled frame or box
    {"line", 0x35425F},          // edges and separators that mean nothing
    {"line-off", 0x222C44},      // the same of a disabled scroll bar
    {"edge", 0x6E7FA6},          // edges that mean something
    {"edge-off", 0x616E8C},      // the same when disabled
    {"text", 0xE8EDF8},          //
    {"bright", 0xFFFFFF},        // titles, headings, selected text
    {"soft", 0xAAB6D0},          // secondary text
    {"dim", 0x808DAA},           // disabled text
    {"resting", 0x8E9BB8},       // title and badge of a side that is not on turn
    {"moon", 0x6FE0EC},          // the accent
    {"gold", 0xF2B92E},          // fire
    {"side-1", 0xFF917C},        // coral
    {"side-2", 0xE39BFF},        // orchid
    {"selection", 0x24507A},     // selected rows and items, which have a mark of moon besides
    {"marked", 0x3570AD},        // selected parts of texts
    {"tip", 0xF3E9C6},           // tool tips
    {"tip-text", 0x1B1A12},      //
    {"tip-edge", 0x8A7A3C},      //
    {"handle", 0x8494BC},        // what moves in a scroll bar
    {"handle-hover", 0xA9B8DC},  //
    {"arrow-off", 0x151D2F},     // the ground of a disabled scroll bar's arrows
    {"tick-off", 0x2A3550},      // the ground of a disabled tick
    {"gauge-off", 0x5A6785},     // the men of a side that is not on turn
    {"badge-off", 0xB4B4B4},     // the badge of a disabled frame
    {"earth", 0x0A1126},         // the ground in the title's picture
};

/// The colour of that name; nothing if there is none.
constexpr std::optional<Colour> findThemeColour(std::string_view name) {
    for (const ThemeColour& known : kThemeColours)
        if (known.name == name) return Colour::fromRgb(known.rgb);
    return std::nullopt;
}

/// The same for a name in the source: a wrong one does not compile.
consteval Colour themeColour(std::string_view name) {
    return findThemeColour(name).value();
}

/// A side's own colour.
constexpr Colour sideColour(int side) {
    return side == kLeftSide ? themeColour("side-1") : themeColour("side-2");
}

/// A style sheet with its placeholders filled in: @families, @text-size, @large-size,
/// @heading-size, and an @ before the name of a colour. Throws std::out_of_range, naming it, for
/// any other.
std::string withTheme(std::string_view styleSheet);

}  // namespace skylob
