#pragma once

#include <cstdint>
#include <string>

#include "base/Colour.h"

namespace skylob {

/// A colour as a property holds it: a literal 0x00BBGGRR, or 0x800000nn for system colour nn.
using ColourReference = std::uint32_t;

/// A rectangle by its edges in pixels; right and bottom are the first column and row outside.
struct GlintRect {
    int left = 0, top = 0, right = 0, bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    GlintRect moved(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
    bool operator==(const GlintRect&) const = default;
};

struct GlintSize {
    int width = 0, height = 0;

    bool operator==(const GlintSize&) const = default;
};

/// A typeface as a button knows it; sizes are logical pixels.
struct GlintFont {
    std::string name;
    float size = 0;
    bool bold = false, italic = false, underline = false;

    bool operator==(const GlintFont&) const = default;
};

/// The name under which the surface finds a picture; empty for none.
using PictureReference = std::string;

// What the numbers among the properties mean. They stay open: any value is stored.

/// ButtonType: with rounded corners, transparent over what lies behind, or dropped towards the
/// lower right. Every other value is drawn in the common way.
constexpr std::int32_t kStyleCommon = 2, kStyleRounded = 3, kStyleGlass = 11, kStyleDropped = 14;
/// ColorScheme: where the palette comes from. Any other value is the system's scheme, too.
constexpr std::int32_t kSchemeSystem = 1, kSchemeOwn = 2, kSchemeGrey = 3, kSchemeContainer = 4;
/// PicturePosition: where the picture stands, seen from the caption.
constexpr std::int32_t kPictureLeft = 0, kPictureRight = 1, kPictureAbove = 2, kPictureBelow = 3,
                       kPictureBehind = 4;
/// SpecialEffect: how the caption is drawn. Any other value is a plain one.
constexpr std::int32_t kEffectRaised = 1, kEffectEngraved = 2, kEffectShadow = 3;

/// The values that a form is designed with, and that the host may change at any time.
struct GlintProperties {
    std::int32_t ButtonType = 0;
    std::int32_t ColorScheme = 0;
    std::int32_t PicturePosition = 0;
    std::int32_t SpecialEffect = 0;
    ColourReference BackColor = 0, BackOver = 0;  ///< face; face under the pointer
    ColourReference ForeColor = 0, ForeOver = 0;  ///< caption; caption under the pointer
    ColourReference MaskColor = 0;                ///< what is transparent in pictures
    bool UseMaskColor = false;
    bool UseGreyscale = false;
    PictureReference PictureNormal, PictureOver;
    std::string Caption;  ///< UTF-8; an ampersand marks the access key
    bool Enabled = false;
    bool SoftBevel = false;  ///< halves every colour shift
    bool ShowFocusRect = false;
    bool CheckBoxBehaviour = false;  ///< each click inverts Value
    bool Value = false;

    bool operator==(const GlintProperties&) const = default;
};

/// What a button is drawn with; all are literal colours.
struct GlintPalette {
    Colour FaceColour, FaceOverColour;
    Colour TextColour, TextOverColour;
    Colour ShadowColour;      ///< inner dark bevel line
    Colour LightColour;       ///< inner light bevel line
    Colour HighlightColour;   ///< outer light bevel line
    Colour DarkShadowColour;  ///< outer dark bevel line
    Colour HotBorderColour;   ///< border of the hover highlight
    Colour HotFillColour;     ///< fill of the hover highlight
    Colour MaskRGB;
    Colour FaceLightColour;

    bool operator==(const GlintPalette&) const = default;
};

/// The numbers of the mouse buttons; those held together are summed up.
constexpr std::int16_t kMouseLeft = 1, kMouseRight = 2, kMouseMiddle = 4;
/// The sum that a mouse or key event says was held.
constexpr std::int16_t kHeldShift = 1, kHeldControl = 2, kHeldAlt = 4;

/// The states that the painter draws.
constexpr int kStateUp = 0, kStatePressed = 2;

/// Everything that one button is and knows.
struct GlintState : GlintProperties {
    int currentState = kStateUp;  ///< the state drawn last
    bool IsOver = false;          ///< the pointer is over the button

    std::uint8_t LastButton = 0;   ///< of the last mouse-down, such as kMouseLeft
    std::uint8_t LastKeyDown = 0;  ///< low byte of the last key-down
    bool HasFocus = false;
    bool IsShown = false;
    bool CaptureBusy = false;  ///< a background capture is in progress

    GlintPalette palette;

    GlintSize client;             ///< the button's size
    GlintRect content;            ///< the client rectangle less the bevel
    GlintSize picture;            ///< of PictureNormal, 0 x 0 without one
    GlintRect text, textPressed;  ///< the caption, and the same moved by 1, 1
    GlintRect picturePlace;

    bool operator==(const GlintState&) const = default;
};

}  // namespace skylob
