#pragma once

#include "controls/GlintState.h"

namespace skylob {

/// The colours of the window behind a button, for the scheme that follows it.
struct ContainerColours {
    Colour background, text;
};

/// The numbers of the system colours that a button may ask for.
namespace systemcolour {
constexpr int kSelection = 13, kButtonFace = 15, kButtonShadow = 16, kButtonText = 18;
constexpr int kButtonHighlight = 20, kDarkShadow = 21, kLight = 22;
}  // namespace systemcolour

/// A system colour by its number, from a fixed table; black for a number that is not in it.
Colour systemColour(int number);

/// A literal colour passes unchanged; a reference to a system colour is looked up. What is
/// neither gives black.
Colour TranslateColour(ColourReference colour);

/// How strongly ShiftColour acts; Soft halves the shift, towards zero.
enum class Bevel { Hard, Soft };

/// Whether blue moves by the same amount as red and green or in proportion to itself.
enum class BlueShift { Flat, Scaled };

/// Brightens (delta above 0) or darkens a colour.
Colour ShiftColour(Colour colour, int delta, BlueShift blue, Bevel bevel);

/// Moves a colour towards white by amount / 255; amount is 0..255.
Colour BlendToWhite(Colour colour, int amount);

/// The palette of a button with these properties, by its ColorScheme.
GlintPalette RecalcColours(const GlintProperties& properties, const ContainerColours& container);

}  // namespace skylob
