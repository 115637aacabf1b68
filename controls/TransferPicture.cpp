#include "controls/TransferPicture.h"

#include "base/Rounding.h"

namespace skylob {

namespace {

/// A pixel's three bytes in the order in which they lie.
template <typename Byte>
struct Pixel {
    Byte *blue, *green, *red;

    explicit Pixel(Byte* at) : blue{at}, green{at + 1}, red{at + 2} {}
    Colour colour() const {
        return Colour::fromBgr(std::uint32_t{*blue} << 16 | std::uint32_t{*green} << 8 | *red);
    }
};
using Source = Pixel<const std::uint8_t>;
using Target = Pixel<std::uint8_t>;

void copy(const Source& from, const Target& to) {
    *to.blue = *from.blue;
    *to.green = *from.green;
    *to.red = *from.red;
}

void copyGrey(const Source& from, const Target& to) {
    // Quirk "red rounded first": by itself, before the sum is formed.
    const int red = roundToNearest(*from.red * 0.3);
    const int grey = roundToNearest(red + *from.green * 0.59 + *from.blue * 0.11);
    *to.blue = *to.green = *to.red = static_cast<std::uint8_t>(grey);
}

void copyBlended(const Source& from, const Target& to) {
    const auto blended = [](int source, int target) {
        return static_cast<std::uint8_t>((2 * source + target) / 3);
    };
    *to.blue = blended(*from.blue, *to.blue);
    *to.green = blended(*from.green, *to.green);
    *to.red = blended(*from.red, *to.red);
}

void copyDark(const Source& from, const Target& to) {
    if (*from.red + *from.green + *from.blue <= 384) copy(from, to);
}

using Merge = void (*)(const Source&, const Target&);

Merge mergeFor(const TransferEffects& effects) {
    if (!effects.ghost) return effects.darkOnly ? copyDark : copy;
    if (effects.greyscale) return copyGrey;
    return effects.blend ? copyBlended : copy;
}

}  // namespace

void TransferPicture(const PixelArray<const std::uint8_t>& picture,
                     const PixelArray<std::uint8_t>& target, const TransferEffects& effects,
                     std::optional<Colour> transparent, const NearestColour& nearest) {
    const Merge merge = mergeFor(effects);
    for (int y = 0; y < picture.height; ++y) {
        const std::uint8_t* from = picture.row(y).data();
        std::uint8_t* to = target.row(y).data();
        for (int x = 0; x < picture.width; ++x, from += 3, to += 3) {
            const Source source{from};
            const Colour colour = nearest ? nearest(source.colour()) : source.colour();
            if (colour != transparent) merge(source, Target{to});
        }
    }
}

}  // namespace skylob
