#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "battle/light/FieldLayer.h"

namespace skylob::test {

/// What somebody sees of a layer who is shown only what each update says has changed.
struct ShownPicture {
    void update(FieldLayer& layer, const PixelRect& changed) {
        width = layer.width();
        pixels.resize(static_cast<std::size_t>(width * layer.height()));
        for (const PixelRect& area : layer.update(changed))
            layer.paint(area, [&](const FieldLayer::Part& part) {
                for (int y = part.area.y; y < part.area.bottom(); ++y)
                    std::copy_n(part.row(y), part.area.width,
                                pixels.begin() + y * width + part.area.x);
            });
    }

    std::uint32_t at(int px, int py) const {
        return pixels[static_cast<std::size_t>(py * width + px)];
    }

    int width = 0;
    std::vector<std::uint32_t> pixels;
};

}  // namespace skylob::test
