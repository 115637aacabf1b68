#include "controls/qt/GlintKeptDrawing.h"

#include <algorithm>
#include <utility>

#include "controls/qt/GlintPainter.h"

namespace skylob {

namespace {
constexpr std::size_t kMost = 4;
}

GlintKeptDrawing::Origin::Origin(const GlintCanvas& canvas)
    : button{canvas.button},
      state{canvas.state},
      over{canvas.over},
      enabled{canvas.enabled},
      font{canvas.font},
      picture{canvas.picture.cacheKey()},
      backdrop{canvas.backdrop.cacheKey()},
      ratio{canvas.ratio},
      corner{canvas.corner} {
}

const QImage& GlintKeptDrawing::of(const GlintCanvas& canvas) {
    Origin origin{canvas};
    auto found = std::find_if(m_kept.begin(), m_kept.end(),
                              [&origin](const Kept& kept) { return kept.origin == origin; });
    if (found == m_kept.end()) {
        if (m_kept.size() == kMost) m_kept.pop_back();
        found = m_kept.insert(m_kept.end(), {std::move(origin), paintGlintButton(canvas)});
    }
    std::rotate(m_kept.begin(), found, found + 1);
    return m_kept.front().drawing;
}

}  // namespace skylob
