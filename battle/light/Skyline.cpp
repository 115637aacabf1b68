#include "battle/light/Skyline.h"

namespace skylob {

void Skyline::trace(const FieldPicture& picture, Colour ground) {
    const auto width = static_cast<std::size_t>(picture.width());
    m_top.assign(width, picture.height());
    bool grows = true;
    // Row by row upwards, because that is how the pixels lie in memory.
    for (int y = picture.height() - 1; y >= 0 && grows; --y) {
        grows = false;
        for (std::size_t x = 0; x < width; ++x) {
            if (m_top[x] != y + 1) continue;
            if (picture.persistentPixel(static_cast<int>(x), y) != ground.pixel()) continue;
            m_top[x] = y;
            grows = true;
        }
    }
}

}  // namespace skylob
