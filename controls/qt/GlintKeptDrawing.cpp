#include "controls/qt/GlintKeptDrawing.h"

#include <utility>

#include "controls/qt/GlintPainter.h"

namespace skylob {

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
    if (m_origin != origin) {
        m_drawing = paintGlintButton(canvas);
        m_origin = std::move(origin);
    }
    return m_drawing;
}

}  // namespace skylob
