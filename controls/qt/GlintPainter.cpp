#include "controls/qt/GlintPainter.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "controls/TransferPicture.h"

namespace skylob {

namespace {

constexpr int kFlat = 3, kGlass = 11, kDropped = 14;

QColor toQColor(Colour colour) {
    return QColor{static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                  static_cast<int>(colour >> 16 & 0xFF)};
}

QColor mix(const QColor& a, const QColor& b, double t) {
    const auto channel = [t](int from, int to) { return qRound(from + (to - from) * t); };
    return QColor{channel(a.red(), b.red()), channel(a.green(), b.green()),
                  channel(a.blue(), b.blue())};
}

QColor withAlpha(QColor colour, int alpha) {
    colour.setAlpha(alpha);
    return colour;
}

/// The colours of one drawing: the palette as hovering, being disabled and so on change it.
struct Shades {
    QColor face, text, highlight, light, shadow, darkShadow, hotBorder, faceLight, flat;
    QColor onHighlight;  // what a toggled-on face leans to
    QColor bevelFace;    // what a bevel line that is softened leans to

    explicit Shades(const GlintCanvas& canvas) {
        const GlintPalette& palette = canvas.button.palette;
        const bool hover = canvas.over && canvas.enabled;
        face = toQColor(hover ? palette.FaceOverColour : palette.FaceColour);
        text = toQColor(hover ? palette.TextOverColour : palette.TextColour);
        highlight = toQColor(palette.HighlightColour);
        light = toQColor(palette.LightColour);
        shadow = toQColor(palette.ShadowColour);
        darkShadow = toQColor(palette.DarkShadowColour);
        hotBorder = toQColor(palette.HotBorderColour);
        faceLight = toQColor(palette.FaceLightColour);
        flat = mix(toQColor(palette.FaceColour), hotBorder, 0.55);
        onHighlight = highlight;
        bevelFace = canvas.enabled ? face : flat;
        if (hover) highlight = mix(highlight, Qt::white, 0.25);
        if (!canvas.enabled) {
            highlight = mix(light, flat, 0.4);
            light = mix(light, flat, 0.6);
            shadow = mix(shadow, flat, 0.4);
        }
    }
};

/// One drawing in device pixels.
class Drawing {
  public:
    explicit Drawing(const GlintCanvas& canvas)
        : m_canvas{canvas},
          m_button{canvas.button},
          m_shades{canvas},
          m_ratio{canvas.ratio},
          m_line{std::max(1, static_cast<int>(std::floor(canvas.ratio)))},
          m_width{qRound(m_button.client.width * canvas.ratio)},
          m_height{qRound(m_button.client.height * canvas.ratio)},
          m_pressed{canvas.state == kStatePressed},
          m_on{m_button.Value && m_button.CheckBoxBehaviour && !m_pressed},
          m_image{m_width, m_height, QImage::Format_ARGB32_Premultiplied} {}

    QImage run() {
        m_image.fill(Qt::transparent);
        m_painter.begin(&m_image);
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
    bool movesContent() const { return m_pressed || (m_on && m_button.ButtonType != kGlass); }

    void drawFace() {
        switch (m_button.ButtonType) {
            case kFlat:
                drawFlatFace();
                break;
            case kGlass:
                drawGlassFace();
                break;
            case kDropped:
                drawDroppedFace();
                break;
            default:
                drawCommonFace();
                break;
        }
    }

    void drawCommonFace() {
        const Shades& s = m_shades;
        const QRect all{0, 0, m_width, m_height};
        fillGradient(all);
        if (isSunken())
            drawBevels(all, {s.darkShadow, s.highlight}, {s.shadow, s.light});
        else
            drawBevels(all, {s.highlight, s.darkShadow}, {s.light, s.shadow});
    }

    void drawFlatFace() {
        const Shades& s = m_shades;
        const int u = m_line, right = m_width - u, bottom = m_height - u;
        fillGradient({u, u, m_width - 2 * u, m_height - 2 * u});
        const QColor outline = m_canvas.enabled ? s.darkShadow : s.shadow;
        const auto dot = [&](int x, int y) { fill({x, y, u, u}, outline); };
        for (const int y : {0, bottom}) fill({2 * u, y, m_width - 4 * u, u}, outline);
        for (const int x : {0, right}) fill({x, 2 * u, u, m_height - 4 * u}, outline);
        for (const int x : {u, right - u})
            for (const int y : {u, bottom - u}) dot(x, y);
        const QColor top = isSunken() ? s.shadow : s.highlight;
        const QColor low = isSunken() ? s.light : s.shadow;
        fill({2 * u, u, m_width - 4 * u, u}, top);
        fill({u, 2 * u, u, m_height - 4 * u}, mix(top, s.bevelFace, 0.45));
        fill({2 * u, bottom - u, m_width - 4 * u, u}, low);
        fill({right - u, 2 * u, u, m_height - 4 * u}, mix(low, s.bevelFace, 0.35));
    }

    void drawGlassFace() {
        const Shades& s = m_shades;
        const QRect all{0, 0, m_width, m_height};
        if (!m_canvas.backdrop.isNull()) m_painter.drawImage(0, 0, m_canvas.backdrop);
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
        const Shades& s = m_shades;
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
        const Shades& s = m_shades;
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
        const int step = movesContent() ? 1 : 0;
        const GlintRect place = m_button.picturePlace.moved(step, step);
        const QRect wanted{QPoint{qRound(place.left * m_ratio), qRound(place.top * m_ratio)},
                           m_canvas.picture.size()};
        const QRect area = wanted.intersected(m_image.rect());
        if (area.isEmpty()) return;
        const QImage source = m_canvas.picture.copy(area.translated(-wanted.topLeft()))
                                  .convertToFormat(QImage::Format_BGR888);
        QImage target = m_image.copy(area).convertToFormat(QImage::Format_BGR888);
        std::optional<Colour> transparent;
        if (m_button.UseMaskColor) transparent = m_button.palette.MaskRGB;
        TransferPicture(pixels<const std::uint8_t>(source.constBits(), source),
                        pixels<std::uint8_t>(target.bits(), target), effects(), transparent);
        m_painter.begin(&m_image);
        m_painter.drawImage(area.topLeft(), target);
        m_painter.end();
    }

    template <typename Byte>
    static PixelArray<Byte> pixels(Byte* bits, const QImage& image) {
        return {std::span<Byte>{bits, static_cast<std::size_t>(image.sizeInBytes())}, image.width(),
                image.height(), static_cast<int>(image.bytesPerLine())};
    }

    TransferEffects effects() const {
        TransferEffects effects;
        effects.greyscale = m_button.UseGreyscale && !m_canvas.over;
        effects.blend = !m_canvas.enabled;
        effects.ghost = effects.greyscale || effects.blend;
        return effects;
    }

    void drawCaption() {
        if (m_button.Caption.empty()) return;
        const GlintRect place = movesContent() ? m_button.textPressed : m_button.text;
        const QRectF area(place.left, place.top, place.width(), place.height());
        m_painter.save();
        m_painter.scale(m_ratio, m_ratio);
        m_painter.setFont(m_canvas.font);
        switch (m_button.SpecialEffect) {
            case 1:
                drawText(area.translated(-1, -1), m_shades.highlight);
                break;
            case 2:
                drawText(area.translated(1, 1), m_shades.highlight);
                break;
            case 3:
                drawText(area.translated(1, 1), m_shades.darkShadow);
                break;
            default:
                break;
        }
        drawText(area, m_shades.text);
        m_painter.restore();
    }

    void drawText(const QRectF& area, const QColor& colour) {
        m_painter.setPen(colour);
        m_painter.drawText(
            area, Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic | Qt::TextDontClip,
            QString::fromStdString(m_button.Caption));
    }

    void drawVeil() {
        const int u = m_line, drop = m_button.ButtonType == kDropped ? u : 0;
        const QRect area{2 * u, 2 * u, m_width - 4 * u - drop, m_height - 4 * u - drop};
        if (m_button.ButtonType != kGlass) {
            fill(area, withAlpha(m_shades.flat, 120));
        } else if (!m_canvas.backdrop.isNull()) {
            m_painter.setOpacity(0.5);
            m_painter.drawImage(area, m_canvas.backdrop, area);
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
    Shades m_shades;
    qreal m_ratio;
    int m_line, m_width, m_height;
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
