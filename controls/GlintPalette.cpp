#include "controls/GlintPalette.h"

#include <algorithm>

namespace skylob {

namespace {

struct Channels {
    int red, green, blue;
};

Channels split(Colour colour) {
    return {colour.red(), colour.green(), colour.blue()};
}

Colour joined(const Channels& channels) {
    return Colour::fromBgr(
        static_cast<std::uint32_t>(channels.blue * 65536 + channels.green * 256 + channels.red));
}

Bevel bevelOf(const GlintProperties& properties) {
    return properties.SoftBevel ? Bevel::Soft : Bevel::Hard;
}

/// The bevel lines that follow from the face colour.
void shiftBevels(GlintPalette& palette, Bevel bevel) {
    const auto shifted = [&](int delta) {
        return ShiftColour(palette.FaceColour, delta, BlueShift::Flat, bevel);
    };
    palette.ShadowColour = shifted(-64);
    palette.LightColour = shifted(31);
    palette.HighlightColour = shifted(47);
    palette.DarkShadowColour = shifted(-192);
}

void takeHotColours(GlintPalette& palette) {
    palette.HotBorderColour = systemColour(systemcolour::kSelection);
    palette.HotFillColour = BlendToWhite(palette.HotBorderColour, 176);
}

GlintPalette ownColours(const GlintProperties& properties) {
    GlintPalette palette;
    palette.FaceColour = TranslateColour(properties.BackColor);
    palette.FaceOverColour = TranslateColour(properties.BackOver);
    palette.TextColour = TranslateColour(properties.ForeColor);
    palette.TextOverColour = TranslateColour(properties.ForeOver);
    shiftBevels(palette, bevelOf(properties));
    palette.HotBorderColour =
        ShiftColour(palette.FaceColour, -128, BlueShift::Flat, bevelOf(properties));
    palette.HotFillColour = palette.FaceColour;
    return palette;
}

GlintPalette greyColours() {
    GlintPalette palette;
    palette.FaceColour = palette.FaceOverColour = Colour::fromBgr(0xC0C0C0);
    palette.ShadowColour = Colour::fromBgr(0x808080);
    palette.LightColour = Colour::fromBgr(0xDFDFDF);
    palette.HighlightColour = kWhite;
    palette.HotBorderColour = Colour::fromBgr(0x800000);
    palette.HotFillColour = Colour::fromBgr(0xD1ADAD);
    return palette;
}

GlintPalette containerColours(const GlintProperties& properties,
                              const ContainerColours& container) {
    GlintPalette palette;
    palette.FaceColour = palette.FaceOverColour = container.background;
    palette.TextColour = palette.TextOverColour = container.text;
    shiftBevels(palette, bevelOf(properties));
    takeHotColours(palette);
    return palette;
}

GlintPalette systemColours() {
    GlintPalette palette;
    palette.FaceColour = palette.FaceOverColour = systemColour(systemcolour::kButtonFace);
    palette.ShadowColour = systemColour(systemcolour::kButtonShadow);
    palette.LightColour = systemColour(systemcolour::kLight);
    palette.DarkShadowColour = systemColour(systemcolour::kDarkShadow);
    palette.HighlightColour = systemColour(systemcolour::kButtonHighlight);
    palette.TextColour = palette.TextOverColour = systemColour(systemcolour::kButtonText);
    takeHotColours(palette);
    return palette;
}

GlintPalette coloursOfScheme(const GlintProperties& properties, const ContainerColours& container) {
    switch (properties.ColorScheme) {
        case kSchemeOwn:
            return ownColours(properties);
        case kSchemeGrey:
            return greyColours();
        case kSchemeContainer:
            return containerColours(properties, container);
        default:
            return systemColours();
    }
}

}  // namespace

Colour systemColour(int number) {
    switch (number) {
        case systemcolour::kSelection:
            return Colour::fromBgr(0x800000);
        case systemcolour::kButtonFace:
            return Colour::fromBgr(0xC0C0C0);
        case systemcolour::kButtonShadow:
            return Colour::fromBgr(0x808080);
        case systemcolour::kButtonText:
            return kBlack;
        case systemcolour::kButtonHighlight:
            return kWhite;
        case systemcolour::kDarkShadow:
            return kBlack;
        case systemcolour::kLight:
            return Colour::fromBgr(0xDFDFDF);
        default:
            return kBlack;
    }
}

Colour TranslateColour(ColourReference colour) {
    if (colour <= 0xFFFFFF) return Colour::fromBgr(colour);
    const ColourReference number = colour ^ 0x80000000u;
    return number <= 0xFF ? systemColour(static_cast<int>(number)) : kBlack;
}

Colour ShiftColour(Colour colour, int delta, BlueShift blue, Bevel bevel) {
    const int d = bevel == Bevel::Soft ? delta / 2 : delta;
    Channels channels = split(colour);
    channels.red += d;
    channels.green += d;
    // Quirk "scaled blue": it alone moves in proportion to itself, so that warm and cold faces stay
    // what they are.
    channels.blue += blue == BlueShift::Scaled ? channels.blue * d / 192 : d;
    for (int* channel : {&channels.red, &channels.green, &channels.blue}) {
        if (d > 0) *channel = std::min(*channel, 255);
        if (d < 0) *channel = std::max(*channel, 0);
    }
    return joined(channels);
}

Colour BlendToWhite(Colour colour, int amount) {
    Channels channels = split(colour);
    for (int* channel : {&channels.red, &channels.green, &channels.blue})
        *channel = std::min(*channel * (255 - amount) / 255 + amount, 255);
    return joined(channels);
}

GlintPalette RecalcColours(const GlintProperties& properties, const ContainerColours& container) {
    GlintPalette palette = coloursOfScheme(properties, container);
    palette.MaskRGB = TranslateColour(properties.MaskColor);
    const BlueShift blue =
        properties.ButtonType == kStyleRounded ? BlueShift::Scaled : BlueShift::Flat;
    palette.FaceLightColour = ShiftColour(palette.FaceColour, 48, blue, bevelOf(properties));
    return palette;
}

}  // namespace skylob
