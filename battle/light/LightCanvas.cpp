#include "battle/light/LightCanvas.h"

namespace skylob {

namespace {

/// Two of a pixel's four parts, 16 bits apart, by a share of 255; rounded.
std::uint32_t scaled(std::uint32_t parts, std::uint32_t share) {
    const std::uint32_t product = parts * share + 0x800080u;
    return (product + (product >> 8 & 0xFF00FFu)) >> 8 & 0xFF00FFu;
}

/// Premultiplied.
std::uint32_t faded(Colour colour, std::uint32_t alpha) {
    const std::uint32_t opaque = colour.pixel();
    return scaled(opaque & 0xFF00FFu, alpha) | scaled(opaque >> 8 & 0xFF00FFu, alpha) << 8;
}

std::uint32_t laidOver(std::uint32_t under, std::uint32_t over) {
    const std::uint32_t rest = 255 - (over >> 24);
    return over + scaled(under & 0xFF00FFu, rest) + (scaled(under >> 8 & 0xFF00FFu, rest) << 8);
}

/// 1 well inside an edge, 0 well outside; `depth` is how far inside.
double smoothEdge(double depth) {
    return std::clamp(depth + 0.5, 0.0, 1.0);
}

double squaredDistance(double x, double y, LightPoint from, LightPoint to) {
    const double dx = to.x - from.x, dy = to.y - from.y;
    const double length = dx * dx + dy * dy;
    const double along = length > 0 ? ((x - from.x) * dx + (y - from.y) * dy) / length : 0;
    const double at = std::clamp(along, 0.0, 1.0);
    const double awayX = x - from.x - at * dx, awayY = y - from.y - at * dy;
    return awayX * awayX + awayY * awayY;
}

/// How far inside the edge from one corner to the next, which runs clockwise around.
double depth(double x, double y, LightPoint from, LightPoint to) {
    const double dx = to.x - from.x, dy = to.y - from.y;
    return (dx * (y - from.y) - dy * (x - from.x)) / std::sqrt(dx * dx + dy * dy);
}

}  // namespace

void LightCanvas::start(const PixelRect& area) {
    m_area = area;
    m_pixels.assign(static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height),
                    0);
    m_alphas.resize(static_cast<std::size_t>(area.width));
}

void LightCanvas::lay(int x, int y, Colour colour, std::span<const std::uint32_t> alphas) {
    std::uint32_t* const under = row(y) + (x - m_area.x);
    for (std::size_t i = 0; i < alphas.size(); ++i)
        under[i] = laidOver(under[i], faded(colour, alphas[i]));
}

void LightCanvas::glow(LightPoint at, double radius, Colour colour, double strength) {
    const double perSquare = 1 / (radius * radius);
    shade({at.x - radius, at.y - radius}, {at.x + radius, at.y + radius}, colour, strength,
          [at, perSquare](double x, double y) {
              const double dx = x - at.x, dy = y - at.y;
              const double share = std::max(1 - (dx * dx + dy * dy) * perSquare, 0.0);
              return share * share;
          });
}

void LightCanvas::disc(LightPoint at, double radius, Colour colour, double strength) {
    const double reach = radius + 1;
    shade({at.x - reach, at.y - reach}, {at.x + reach, at.y + reach}, colour, strength,
          [at, radius](double x, double y) {
              const double dx = x - at.x, dy = y - at.y;
              return smoothEdge(radius - std::sqrt(dx * dx + dy * dy));
          });
}

void LightCanvas::line(LightPoint from, LightPoint to, double width, Colour colour,
                       double strength) {
    const double reach = width / 2 + 1;
    shade({std::min(from.x, to.x) - reach, std::min(from.y, to.y) - reach},
          {std::max(from.x, to.x) + reach, std::max(from.y, to.y) + reach}, colour, strength,
          [from, to, width](double x, double y) {
              return smoothEdge(width / 2 - std::sqrt(squaredDistance(x, y, from, to)));
          });
}

void LightCanvas::polygon(std::span<const LightPoint> corners, Colour colour, double strength) {
    if (corners.empty()) return;
    LightPoint low = corners.front(), high = low;
    for (const LightPoint& corner : corners) {
        low = {std::min(low.x, corner.x), std::min(low.y, corner.y)};
        high = {std::max(high.x, corner.x), std::max(high.y, corner.y)};
    }
    shade(low, high, colour, strength, [corners](double x, double y) {
        double least = 0.5;
        LightPoint from = corners.back();
        for (const LightPoint& to : corners) {
            least = std::min(least, depth(x, y, from, to));
            from = to;
        }
        return smoothEdge(least);
    });
}

void LightCanvas::image(const FieldPicture::PieceImage& image, int x, int y) {
    const PixelRect seen = common({x, y, image.width, image.height}, m_area);
    for (int py = seen.y; py < seen.bottom(); ++py) {
        const auto first =
            static_cast<std::size_t>(py - y) * static_cast<std::size_t>(image.width) +
            static_cast<std::size_t>(seen.x - x);
        std::transform(row(py) + (seen.x - m_area.x), row(py) + (seen.right() - m_area.x),
                       image.pixels.data() + first, row(py) + (seen.x - m_area.x), laidOver);
    }
}

}  // namespace skylob
