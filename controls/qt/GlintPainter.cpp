#include "controls/qt/GlintPainter.h"

#include <QPainter>
#include <optional>

#include "controls/qt/GlintPainterFace.h"
#include "controls/qt/QtPictureMerge.h"
#include "look/qt/QtColour.h"

namespace skylob {

namespace {

/// One drawing with all that stands on its face.
class Painting {
  public:
    explicit Painting(const GlintCanvas& canvas)
        : m_drawing{canvas},
          m_image{m_drawing.width, m_drawing.height, QImage::Format_ARGB32_Premultiplied} {}

    QImage run() {
        m_image.fill(Qt::transparent);
        m_painter.begin(&m_image);
        m_painter.setClipRegion(m_drawing.shape);
        drawGlintFace(m_painter, m_drawing);
        m_painter.end();
        drawPicture();
        m_painter.begin(&m_image);
        drawCaption();
        if (!m_drawing.canvas.enabled) drawVeil();
        if (m_drawing.on) drawOnMark();
        if (m_drawing.button.HasFocus && m_drawing.button.ShowFocusRect) drawFocus();
        m_painter.end();
        return m_image;
    }

  private:
    void drawPicture() {
        QImage picture = m_drawing.canvas.picture;
        if (picture.isNull()) return;
        const GlintRect& place = m_drawing.button.picturePlace;
        const QPoint up{qRound(place.left * m_drawing.ratio), qRound(place.top * m_drawing.ratio)};
        std::optional<Colour> transparent;
        if (m_drawing.button.UseMaskColor)
            transparent = m_drawing.button.palette.MaskRGB;
        else
            picture = onGround(picture, m_drawing.shades.mask);
        mergePicture(m_image, up + contentStep(), picture, effects(), transparent);
    }

    /// How far picture and caption are moved while the button is down.
    QPoint contentStep() const {
        const bool down = m_drawing.pressed || (m_drawing.on && m_drawing.style() != kStyleGlass);
        return down ? QPoint{m_drawing.step, m_drawing.step} : QPoint{};
    }

    TransferEffects effects() const {
        TransferEffects effects;
        effects.greyscale = m_drawing.button.UseGreyscale && !m_drawing.canvas.over;
        effects.blend = !m_drawing.canvas.enabled;
        effects.ghost = effects.greyscale || effects.blend;
        return effects;
    }

    void drawCaption() {
        if (m_drawing.button.Caption.empty()) return;
        const QPoint place = contentStep(), aside{m_drawing.step, m_drawing.step};
        switch (m_drawing.button.SpecialEffect) {
            case kEffectRaised:
                drawText(place - aside, m_drawing.shades.highlight);
                break;
            case kEffectEngraved:
                drawText(place + aside, m_drawing.shades.highlight);
                break;
            case kEffectShadow:
                drawText(place + aside, m_drawing.shades.darkShadow);
                break;
            default:
                break;
        }
        drawText(place, m_drawing.shades.text);
    }

    /// Draws the caption that many device pixels from where it stands when the button is up: moved
    /// by whole ones it keeps its form.
    void drawText(const QPoint& from, const QColor& colour) {
        const GlintRect& text = m_drawing.button.text;
        m_painter.save();
        m_painter.translate(from);
        m_painter.scale(m_drawing.ratio, m_drawing.ratio);
        m_painter.setFont(m_drawing.canvas.font);
        m_painter.setPen(colour);
        m_painter.drawText(
            QRectF(text.left, text.top, text.width(), text.height()),
            Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic | Qt::TextDontClip,
            QString::fromStdString(m_drawing.button.Caption));
        m_painter.restore();
    }

    void drawVeil() {
        const int u = m_drawing.line, drop = m_drawing.style() == kStyleDropped ? u : 0;
        const QRect area{2 * u, 2 * u, m_drawing.width - 4 * u - drop,
                         m_drawing.height - 4 * u - drop};
        if (m_drawing.style() != kStyleGlass) {
            fill(area, withAlpha(m_drawing.shades.flat, m_drawing.shades.veil));
        } else if (!m_drawing.canvas.backdrop.isNull()) {
            m_painter.setOpacity(0.4);
            m_painter.setClipRect(area);
            m_painter.drawImage(m_image.rect(), m_drawing.canvas.backdrop);
            m_painter.setClipping(false);
            m_painter.setOpacity(1);
        }
    }

    void drawOnMark() {
        const int u = m_drawing.line;
        fill({6 * u, m_drawing.height - 6 * u, m_drawing.width - 12 * u, 2 * u},
             m_drawing.shades.text);
    }

    void drawFocus() {
        const GlintRect& content = m_drawing.button.content;
        const int u = m_drawing.line;
        const qreal ratio = m_drawing.ratio;
        const int left = qRound(content.left * ratio), top = qRound(content.top * ratio);
        const int right = qRound(content.right * ratio) - u;
        const int bottom = qRound(content.bottom * ratio) - u;
        // Not in the colour of hovering, which the caption has under the pointer.
        const QColor colour = toQColor(m_drawing.button.palette.TextColour);
        const auto dot = [&](int x, int y) {
            // One on, one off, along all four sides.
            if ((x / u + y / u) % 2 == 0) fill({x, y, u, u}, colour);
        };
        for (int x = left; x <= right; x += u)
            for (const int y : {top, bottom}) dot(x, y);
        for (int y = top; y <= bottom; y += u)
            for (const int x : {left, right}) dot(x, y);
    }

    void fill(const QRect& area, const QColor& colour) { m_painter.fillRect(area, colour); }

    GlintDrawing m_drawing;
    QImage m_image;
    QPainter m_painter;
};

}  // namespace

QImage paintGlintButton(const GlintCanvas& canvas) {
    if (canvas.button.client.width <= 0 || canvas.button.client.height <= 0) return {};
    return Painting{canvas}.run();
}

}  // namespace skylob
