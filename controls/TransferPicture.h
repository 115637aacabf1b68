#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>

#include "base/Colour.h"

namespace skylob {

/// Pixels of three bytes each, in the order blue, green, red; a row begins every `stride` bytes,
/// which is at least 3 * width. The bytes belong to somebody else.
template <typename Byte>
struct PixelArray {
    std::span<Byte> bytes;
    int width = 0, height = 0;
    int stride = 0;

    std::span<Byte> row(int y) const {
        return bytes.subspan(static_cast<std::size_t>(y) * static_cast<std::size_t>(stride),
                             static_cast<std::size_t>(width) * 3);
    }
};

/// How a picture is merged into the face below it.
struct TransferEffects {
    bool ghost = false;  ///< one of the next two, greyscale first; else a plain copy
    bool greyscale = false;
    bool blend = false;     ///< two thirds picture, one third face
    bool darkOnly = false;  ///< without ghost: only pixels whose channels sum up to 384 or less
};

/// Maps a colour to the nearest one that the surface can show.
using NearestColour = std::function<Colour(Colour)>;

/// Merges the picture into the target pixel by pixel. Both have the same width and height.
/// Pixels of the transparent colour leave the target as it is; nothing is transparent without
/// one. An empty `nearest` stands for a surface that shows every colour.
void TransferPicture(const PixelArray<const std::uint8_t>& picture,
                     const PixelArray<std::uint8_t>& target, const TransferEffects& effects,
                     std::optional<Colour> transparent, const NearestColour& nearest = {});

}  // namespace skylob
