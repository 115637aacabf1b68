#pragma once

#include <cstdint>
#include <initializer_list>

namespace skylob {

/// `over` (premultiplied alpha, 0xAARRGGBB) upon an opaque pixel.
inline std::uint32_t blend(std::uint32_t under, std::uint32_t over) {
    const std::uint32_t rest = 255 - (over >> 24);
    std::uint32_t result = 0xFF000000u;
    for (const int shift : {0, 8, 16}) {
        const std::uint32_t part = (under >> shift & 0xFFu) * rest;
        result |= ((over >> shift & 0xFFu) + (part + 127) / 255) << shift;
    }
    return result;
}

}  // namespace skylob
