#pragma once

#include <QFont>
#include <QImage>
#include <QPointF>
#include <optional>

#include "controls/GlintState.h"

namespace skylob {

struct GlintCanvas;

/// A button's last drawing, for as long as it would be drawn in just the same way again: windows
/// are redrawn more often than buttons change.
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

    std::optional<Origin> m_origin;
    QImage m_drawing;
};

}  // namespace skylob
