#pragma once

#include <QFont>
#include <QImage>
#include <QPointF>
#include <vector>

#include "controls/GlintState.h"

namespace skylob {

struct GlintCanvas;

/// A button's last few drawings: windows are redrawn more often than buttons change, and what a
/// button changes between, up and pressed, under the pointer or not, disabled, it was before.
class GlintKeptDrawing {
  public:
    /// As paintGlintButton() would draw it; valid until the next call.
    const QImage& of(const GlintCanvas& canvas);

  private:
    /// All that a drawing is made from, its images by the numbers that the toolkit gives them.
    struct Origin {
        explicit Origin(const GlintCanvas& canvas);
        bool operator==(const Origin&) const = default;

        GlintState button;
        int state;
        bool over, enabled;
        QFont font;
        qint64 picture, backdrop;
        qreal ratio;
        QPointF corner;
    };

    struct Kept {
        Origin origin;
        QImage drawing;
    };

    std::vector<Kept> m_kept;  ///< a few, the one asked for last in front
};

}  // namespace skylob
