#include "controls/qt/GlintPainter.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>

#include "controls/GlintLayout.h"
#include "controls/qt/GlintPainterShades.h"
#include "controls/qt/QtPictureMerge.h"

namespace skylob {

namespace {

QColor withAlpha(QColor colour, int alpha) {
    colour.setAlpha(alpha);
    return colour;
}

/// The device pixels that are the button's, counted from its first. A cut that ends between two of
/// them is rounded as the toolkit rounds it when it clips a window to its mask.
QRegion shapeOf(const GlintCanvas& canvas) {
    const GlintSize size = canvas.button.client;
    QRegion shape{0, 0, size.width, size.height};
    for (const GlintPixel& pixel : pixelsOutside(canvas.button.ButtonType, size))
        shape -= QRect{pixel.x, pixel.y, 1, 1};
    const QTransform toDevice = QTransform::fromScale(canvas.ratio, canvas.ratio) *
                                QTransform::fromTranslate(canvas.corner.x(), canvas.corner.y());
    return toDevice.map(shape).translated(-canvas.corner.toPoint());
}

/// One drawing in device pixels.
class Drawing {
  public:
    explicit Drawing(const GlintCanvas& canvas)
        : m_canvas{canvas},
          m_button{canvas.button},
          m_shades{canvas},
          m_ratio{canvas.ratio},
          m_line{std::max(1, static_cast<int>(std::floor(canvas.ratio)))},
          m_step{qRound(canvas.ratio)},
          m_shape{shapeOf(canvas)},
          m_width{m_shape.boundingRect().width()},
          m_height{m_shape.boundingRect().height()},
          m_pressed{canvas.state == kStatePressed},
          m_on{m_button.Value && m_button.CheckBoxBehaviour && !m_pressed},
          m_image{m_width, m_height, QImage::Format_ARGB32_Premultiplied} {}

    QImage run() {
        m_image.fill(Qt::transparent);
        m_painter.begin(&m_image);
        m_painter.setClipRegion(m_shape);
        drawFace();
        m_painter.end();
        drawPicture();
        m_painter.begin(&m_image);
        drawCaption();
        if (!m_canvas.enabled) drawVeil();
        if (m_on) drawOnMark();
        if (m_button.HasFocus && m_button.ShowFocusRect) drawFocus();
        m_painter.end();
        return m_image;
    }

  private:
    bool isSunken() const { return m_pressed || m_on; }
    bool movesContent() const { return m_pressed || (m_on && m_button.ButtonType != kStyleGlass); }

    void drawFace() {
        switch (m_button.ButtonType) {
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

    void drawCommonFace() {
        const GlintShades& s = m_shades;
        const QRect all{0, 0, m_width, m_height};
        fillGradient(all);
        if (isSunken())
            drawBevels(all, {s.darkShadow, s.highlight}, {s.shadow, s.light});
        else
            drawBevels(all, {s.highlight, s.darkShadow}, {s.light, s.shadow});
    }

    void drawRoundedFace() {
        const GlintShades& s = m_shades;
        const int u = m_line, right = m_width - u, bottom = m_height - u;
        fillGradient({u, u, m_width - 2 * u, m_height - 2 * u});
        const QColor top = isSunken() ? s.shadow : s.highlight;
        const QColor low = isSunken() ? s.light : s.shadow;
        fill({2 * u, u, m_width - 4 * u, u}, top);
        fill({u, 2 * u, u, m_height - 4 * u}, mix(top, s.bevelFace, 0.45));
        fill({2 * u, bottom - u, m_width - 4 * u, u}, low);
        fill({right - u, 2 * u, u, m_height - 4 * u}, mix(low, s.bevelFace, 0.35));
        for (const QRect& part : outline()) fill(part, m_canvas.enabled ? s.darkShadow : s.shadow);
    }

    /// What lies within a line's width of the shape's edge: it follows the cut corners.
    QRegion outline() const {
        QRegion inside = m_shape;
        for (const QPoint& to : {QPoint{m_line, 0}, {-m_line, 0}, {0, m_line}, {0, -m_line}})
            inside &= m_shape.translated(to);
        return m_shape - inside;
    }

    void drawGlassFace() {
        const GlintShades& s = m_shades;
        const QRect all{0, 0, m_width, m_height};
        if (!m_canvas.backdrop.isNull()) m_painter.drawImage(all, m_canvas.backdrop);
        const int u = m_line;
        fill(all.adjusted(u, u, -u, -u), glassTint());
        const QColor black = withAlpha(Qt::black, 70), gleam = withAlpha(s.highlight, 120);
        const QColor dark = withAlpha(s.darkShadow, 120);
        drawFrame(all.adjusted(u, u, -u, -u), m_pressed ? Edges{dark, dark} : Edges{gleam, black});
        const bool hover = m_canvas.over && m_canvas.enabled;
        QColor edge = hover ? QColor{Qt::white} : mix(s.highlight, Qt::white, 0.35);
        if (!m_canvas.enabled) edge = s.light;
        drawFrame(all, {edge, edge});
    }

    QColor glassTint() const {
        if (m_pressed) return withAlpha(m_shades.shadow, 170);
        if (m_on) return withAlpha(m_shades.faceLight, 150);
        return withAlpha(m_shades.face, m_canvas.over && m_canvas.enabled ? 150 : 96);
    }

    void drawDroppedFace() {
        const GlintShades& s = m_shades;
        QRect body{0, 0, m_width - m_line, m_height - m_line};
        const QRect drop = body.translated(m_line, m_line);
        if (m_pressed)
            body = drop;
        else
            fill(drop, s.darkShadow);
        fillGradient(body);
        if (isSunken())
            drawBevels(body, {s.darkShadow, s.light}, {s.shadow, mix(s.light, s.bevelFace, 0.5)});
        else
            drawBevels(body, {s.highlight, s.shadow}, {s.light, mix(s.shadow, s.bevelFace, 0.5)});
    }

    void fillGradient(const QRect& area) {
        const GlintShades& s = m_shades;
        QColor top = mix(s.face, s.faceLight, 0.24), bottom = s.face;
        if (!m_canvas.enabled) {
            top = bottom = s.flat;
        } else if (m_pressed) {
            top = mix(s.face, s.hotBorder, 0.22);
            bottom = mix(s.face, s.hotBorder, 0.08);
        } else if (m_on) {
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
        const int u = m_line;
        fill({area.x(), area.y(), area.width(), u}, edges.topLeft);
        fill({area.x(), area.y() + u, u, area.height() - u}, edges.topLeft);
        fill({area.x() + u, area.y() + area.height() - u, area.width() - u, u}, edges.bottomRight);
        fill({area.x() + area.width() - u, area.y() + u, u, area.height() - 2 * u},
             edges.bottomRight);
    }

    void drawBevels(const QRect& area, const Edges& outer, const Edges& inner) {
        drawFrame(area, outer);
        drawFrame(area.adjusted(m_line, m_line, -m_line, -m_line), inner);
    }

    void drawPicture() {
        if (m_canvas.picture.isNull()) return;
        const GlintRect& place = m_button.picturePlace;
        const QPoint up{qRound(place.left * m_ratio), qRound(place.top * m_ratio)};
        std::optional<Colour> transparent;
        if (m_button.UseMaskColor) transparent = m_button.palette.MaskRGB;
        const QImage picture =
            transparent ? m_canvas.picture : onGround(m_canvas.picture, m_shades.mask);
        mergePicture(m_image, up + contentStep(), picture, effects(), transparent);
    }

    QPoint contentStep() const { return movesContent() ? QPoint{m_step, m_step} : QPoint{}; }

    TransferEffects effects() const {
        TransferEffects effects;
        effects.greyscale = m_button.UseGreyscale && !m_canvas.over;
        effects.blend = !m_canvas.enabled;
        effects.ghost = effects.greyscale || effects.blend;
        return effects;
    }

    void drawCaption() {
        if (m_button.Caption.empty()) return;
        const QPoint place = contentStep(), aside{m_step, m_step};
        switch (m_button.SpecialEffect) {
            case kEffectRaised:
                drawText(place - aside, m_shades.highlight);
                break;
            case kEffectEngraved:
                drawText(place + aside, m_shades.highlight);
                break;
            case kEffectShadow:
                drawText(place + aside, m_shades.darkShadow);
                break;
            default:
                break;
        }
        drawText(place, m_shades.text);
    }

    /// Draws the caption that many device pixels from where it stands when the button is up: moved
    /// by whole ones it keeps its form.
    void drawText(const QPoint& from, const QColor& colour) {
        const GlintRect& text = m_button.text;
        m_painter.save();
        m_painter.translate(from);
        m_painter.scale(m_ratio, m_ratio);
        m_painter.setFont(m_canvas.font);
        m_painter.setPen(colour);
        m_painter.drawText(
            QRectF(text.left, text.top, text.width(), text.height()),
            Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic | Qt::TextDontClip,
            QString::fromStdString(m_button.Caption));
        m_painter.restore();
    }

    void drawVeil() {
        const int u = m_line, drop = m_button.ButtonType == kStyleDropped ? u : 0;
        const QRect area{2 * u, 2 * u, m_width - 4 * u - drop, m_height - 4 * u - drop};
        if (m_button.ButtonType != kStyleGlass) {
            fill(area, withAlpha(m_shades.flat, 120));
        } else if (!m_canvas.backdrop.isNull()) {
            m_painter.setOpacity(0.5);
            m_painter.setClipRect(area);
            m_painter.drawImage(m_image.rect(), m_canvas.backdrop);
            m_painter.setClipping(false);
            m_painter.setOpacity(1);
        }
    }

    void drawOnMark() {
        const int u = m_line;
        fill({6 * u, m_height - 6 * u, m_width - 12 * u, 2 * u}, m_shades.text);
    }

    void drawFocus() {
        const GlintRect& content = m_button.content;
        const int u = m_line;
        const int left = qRound(content.left * m_ratio), top = qRound(content.top * m_ratio);
        const int right = qRound(content.right * m_ratio) - u;
        const int bottom = qRound(content.bottom * m_ratio) - u;
        const auto dot = [&](int x, int y) {
            // One on, one off, along all four sides.
            if ((x / u + y / u) % 2 == 0) fill({x, y, u, u}, m_shades.text);
        };
        for (int x = left; x <= right; x += u)
            for (const int y : {top, bottom}) dot(x, y);
        for (int y = top; y <= bottom; y += u)
            for (const int x : {left, right}) dot(x, y);
    }

    void fill(const QRect& area, const QColor& colour) { m_painter.fillRect(area, colour); }

    const GlintCanvas& m_canvas;
    const GlintState& m_button;
    GlintShades m_shades;
    qreal m_ratio;
    int m_line;  ///< a line's width
    int m_step;  ///< a logical pixel, by which things move
    QRegion m_shape;
    int m_width, m_height;
    bool m_pressed, m_on;
    QImage m_image;
    QPainter m_painter;
};

}  // namespace

QImage paintGlintButton(const GlintCanvas& canvas) {
    if (canvas.button.client.width <= 0 || canvas.button.client.height <= 0) return {};
    return Drawing{canvas}.run();
}

}  // namespace skylob
