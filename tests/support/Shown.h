#pragma once

#include <algorithm>

#include "battle/light/FieldLayer.h"

namespace skylob::test {

/// What a layer shows in an area, row by row.
inline std::vector<std::uint32_t> shownBy(FieldLayer& layer, const PixelRect& area) {
    std::vector<std::uint32_t> pixels;
    layer.paint(area, [&](const FieldLayer::Part& part) {
        for (int y = part.area.y; y < part.area.bottom(); ++y)
            pixels.insert(pixels.end(), part.row(y), part.row(y) + part.area.width);
    });
    return pixels;
}
inline std::vector<std::uint32_t> shownBy(FieldLayer& layer) {
    return shownBy(layer, {0, 0, layer.width(), layer.height()});
}

/// What somebody sees of a layer who is shown only what each update says has changed.
struct ShownPicture {
    void update(FieldLayer& layer, const PixelRect& changed) {
        pixels.resize(static_cast<std::size_t>(layer.width() * layer.height()));
        for (const PixelRect& area : layer.update(changed))
            layer.paint(area, [&](const FieldLayer::Part& part) {
                for (int y = part.area.y; y < part.area.bottom(); ++y)
                    std::copy_n(part.row(y), part.area.width,
                                pixels.begin() + y * layer.width() + part.area.x);
            });
    }

    std::vector<std::uint32_t> pixels;
};

}  // namespace skylob::test
