#include "controls/TransferPicture.h"

#include <algorithm>
#include <array>

#include "base/Rounding.h"

namespace skylob {

namespace {

constexpr std::size_t kBytes = 3;  // of a pixel: blue, green, red

/// Some pixels of the picture that lie side by side, and where they go.
struct Run {
    const std::uint8_t* from;
    std::uint8_t* to;
    std::size_t pixels;
};

void copy(const Run& run) {
    std::copy_n(run.from, run.pixels * kBytes, run.to);
}

/// What each value of a channel adds to a grey.
using Shares = std::array<double, 256>;

constexpr Shares sharesOf(double part) {
    Shares shares{};
    for (int value = 0; value < 256; ++value)
        shares[static_cast<std::size_t>(value)] = value * part;
    return shares;
}

constexpr Shares roundedSharesOf(double part) {
    Shares shares = sharesOf(part);
    for (double& share : shares) share = roundToNearest(share);
    return shares;
}

void copyGrey(const Run& run) {
    // Quirk "red rounded first": by itself, before the sum is formed.
    static constexpr Shares kRed = roundedSharesOf(0.3);
    static constexpr Shares kGreen = sharesOf(0.59), kBlue = sharesOf(0.11);
    const std::uint8_t* from = run.from;
    std::uint8_t* const end = run.to + run.pixels * kBytes;
    for (std::uint8_t* to = run.to; to != end; from += kBytes, to += kBytes) {
        const int grey = roundToNearest(kRed[from[2]] + kGreen[from[1]] + kBlue[from[0]]);
        to[0] = to[1] = to[2] = static_cast<std::uint8_t>(grey);
    }
}

void copyBlended(const Run& run) {
    for (std::size_t at = 0; at < run.pixels * kBytes; ++at)
        run.to[at] = static_cast<std::uint8_t>((2 * run.from[at] + run.to[at]) / 3);
}

void copyDark(const Run& run) {
    for (std::size_t at = 0; at < run.pixels * kBytes; at += kBytes) {
        const std::uint8_t* pixel = run.from + at;
        if (pixel[0] + pixel[1] + pixel[2] <= 384) std::copy_n(pixel, kBytes, run.to + at);
    }
}

using Merge = void (*)(const Run&);

Merge mergeFor(const TransferEffects& effects) {
    if (!effects.ghost) return effects.darkOnly ? copyDark : copy;
    if (effects.greyscale) return copyGrey;
    return effects.blend ? copyBlended : copy;
}

/// Tells which pixels of the picture are not to be seen.
struct Mask {
    Colour transparent;
    const NearestColour& nearest;

    bool covers(const std::uint8_t* pixel) const {
        const Colour colour = Colour::fromBgr(std::uint32_t{pixel[0]} << 16 |
                                              std::uint32_t{pixel[1]} << 8 | pixel[2]);
        return (nearest ? nearest(colour) : colour) == transparent;
    }
};

void mergeRow(const Run& row, const Mask& mask, Merge merge) {
    std::size_t first = 0;  // of the pixels to be merged next
    for (std::size_t at = 0; at <= row.pixels; ++at) {
        if (at < row.pixels && !mask.covers(row.from + at * kBytes)) continue;
        merge({row.from + first * kBytes, row.to + first * kBytes, at - first});
        first = at + 1;
    }
}

}  // namespace

void TransferPicture(const PixelArray<const std::uint8_t>& picture,
                     const PixelArray<std::uint8_t>& target, const TransferEffects& effects,
                     std::optional<Colour> transparent, const NearestColour& nearest) {
    const Merge merge = mergeFor(effects);
    const auto width = static_cast<std::size_t>(picture.width);
    for (int y = 0; y < picture.height; ++y) {
        const Run row{picture.row(y).data(), target.row(y).data(), width};
        if (transparent)
            mergeRow(row, {*transparent, nearest}, merge);
        else
            merge(row);
    }
}

}  // namespace skylob
