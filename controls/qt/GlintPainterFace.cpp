#include "controls/qt/GlintPainterFace.h"

#include <QPainter>
#include <algorithm>

namespace skylob {

namespace {

/// The faces of all styles; what they are made of stands below them.
class Face {
  public:
    Face(QPainter& painter, const GlintDrawing& drawing) : m_painter{painter}, m_drawing{drawing} {}

    void draw() {
        switch (m_drawing.style()) {
            case kStyleRounded:
                drawRoundedFace();
                break;
            case kStyleGlass:
                drawGlassFace();
                break;
            case kStyleDropped:
                drawDroppedFace();
                break;
            default:
                drawCommonFace();
                break;
        }
    }

  private:
    void drawCommonFace() {
        const GlintShades& s = m_drawing.shades;
        const QRect all = m_drawing.all();
        fillGradient(all);
        if (m_drawing.isSunken())
            drawBevels(all, {s.darkShadow, s.highlight}, {s.shadow, s.light});
        else
            drawBevels(all, {s.highlight, s.darkShadow}, {s.light, s.shadow});
    }

    void drawRoundedFace() {
        const GlintShades& s = m_drawing.shades;
        const int u = m_drawing.line, right = m_drawing.width - u, bottom = m_drawing.height - u;
        fillGradient({u, u, m_drawing.width - 2 * u, m_drawing.height - 2 * u});
        const QColor top = m_drawing.isSunken() ? s.shadow : s.highlight;
        const QColor low = m_drawing.isSunken() ? s.light : s.shadow;
        fill({2 * u, u, m_drawing.width - 4 * u, u}, top);
        fill({u, 2 * u, u, m_drawing.height - 4 * u}, mix(top, s.bevelFace, 0.45));
        fill({2 * u, bottom - u, m_drawing.width - 4 * u, u}, low);
        fill({right - u, 2 * u, u, m_drawing.height - 4 * u}, mix(low, s.bevelFace, 0.35));
        for (const QRect& part : outline())
            fill(part, m_drawing.canvas.enabled ? s.darkShadow : s.shadow);
    }

    /// What lies within a line's width of the shape's edge: it follows the cut corners.
    QRegion outline() const {
        QRegion inside = m_drawing.shape;
        const int u = m_drawing.line;
        for (const QPoint& to : {QPoint{u, 0}, {-u, 0}, {0, u}, {0, -u}})
            inside &= m_drawing.shape.translated(to);
        return m_drawing.shape - inside;
    }

    void drawGlassFace() {
        const GlintShades& s = m_drawing.shades;
        const QRect all = m_drawing.all();
        if (!m_drawing.canvas.backdrop.isNull())
            m_painter.drawImage(all, m_drawing.canvas.backdrop);
        const int u = m_drawing.line;
        fill(all.adjusted(u, u, -u, -u), glassTint());
        const QColor black = withAlpha(Qt::black, 70), gleam = withAlpha(s.highlight, 120);
        const QColor dark = withAlpha(s.darkShadow, 120);
        drawFrame(all.adjusted(u, u, -u, -u),
                  m_drawing.pressed ? Edges{dark, dark} : Edges{gleam, black});
        QColor edge = m_drawing.hover ? QColor{Qt::white} : mix(s.highlight, Qt::white, 0.35);
        if (!m_drawing.canvas.enabled) edge = s.light;
        drawFrame(all, {edge, edge});
    }

    QColor glassTint() const {
        if (m_drawing.pressed) return withAlpha(m_drawing.shades.shadow, 170);
        if (m_drawing.on) return withAlpha(m_drawing.shades.faceLight, 150);
        return withAlpha(m_drawing.shades.face, m_drawing.hover ? 150 : 96);
    }

    void drawDroppedFace() {
        const GlintShades& s = m_drawing.shades;
        QRect body{0, 0, m_drawing.width - m_drawing.line, m_drawing.height - m_drawing.line};
        const QRect drop = body.translated(m_drawing.line, m_drawing.line);
        if (m_drawing.pressed)
            body = drop;
        else
            fill(drop, s.darkShadow);
        fillGradient(body);
        if (m_drawing.isSunken())
            drawBevels(body, {s.darkShadow, s.light}, {s.shadow, mix(s.light, s.bevelFace, 0.5)});
        else
            drawBevels(body, {s.highlight, s.shadow}, {s.light, mix(s.shadow, s.bevelFace, 0.5)});
    }

    void fillGradient(const QRect& area) {
        const GlintShades& s = m_drawing.shades;
        QColor top = mix(s.face, s.faceLight, 0.24), bottom = s.face;
        if (!m_drawing.canvas.enabled) {
            top = bottom = s.flat;
        } else if (m_drawing.pressed) {
            top = mix(s.face, s.hotBorder, 0.22);
            bottom = mix(s.face, s.hotBorder, 0.08);
        } else if (m_drawing.on) {
            top = mix(s.face, s.onHighlight, 0.30);
            bottom = mix(s.face, s.onHighlight, 0.55);
        }
        const int last = std::max(1, area.height() - 1);
        for (int y = 0; y < area.height(); ++y) {
            fill({area.x(), area.y() + y, area.width(), 1},
                 mix(top, bottom, static_cast<double>(y) / last));
        }
    }

    /// The colours of a frame's top and left, and of its bottom and right.
    struct Edges {
        QColor topLeft, bottomRight;
    };

    void drawFrame(const QRect& area, const Edges& edges) {
        const int u = m_drawing.line;
        fill({area.x(), area.y(), area.width(), u}, edges.topLeft);
        fill({area.x(), area.y() + u, u, area.height() - u}, edges.topLeft);
        fill({area.x() + u, area.y() + area.height() - u, area.width() - u, u}, edges.bottomRight);
        fill({area.x() + area.width() - u, area.y() + u, u, area.height() - 2 * u},
             edges.bottomRight);
    }

    void drawBevels(const QRect& area, const Edges& outer, const Edges& inner) {
        drawFrame(area, outer);
        const int u = m_drawing.line;
        drawFrame(area.adjusted(u, u, -u, -u), inner);
    }

    void fill(const QRect& area, const QColor& colour) { m_painter.fillRect(area, colour); }

    QPainter& m_painter;
    const GlintDrawing& m_drawing;
};

}  // namespace

void drawGlintFace(QPainter& painter, const GlintDrawing& drawing) {
    Face{painter, drawing}.draw();
}

}  // namespace skylob
