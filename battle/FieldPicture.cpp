#include "battle/FieldPicture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "battle/PixelBlend.h"

namespace skylob {

namespace {

constexpr double kUnits = 999.0;  // from the left edge's 1 to the right edge's 1000

int toInt(double value) {
    return static_cast<int>(std::lround(value));
}

}  // namespace

void FieldPicture::resize(int width, int height, int dotScale) {
    ++m_making;
    m_width = width;
    m_height = height;
    m_dotScale = dotScale;
    const auto pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    m_screen.assign(pixels, kBlack.pixel());
    m_covered.resize(pixels);
    m_dirty = {0, 0, width, height};
    hidePieces();
}

void FieldPicture::clear() {
    ++m_making;
    m_covered.forget();
    std::fill(m_screen.begin(), m_screen.end(), kBlack.pixel());
    m_passing.clear();
    markDirty({0, 0, m_width, m_height});
}

void FieldPicture::setPoint(int x, int y, Colour colour, int width) {
    if (m_screen.empty()) return;
    drawDot(dotArea(x, y, width), width, colour.pixel(), Pictures::Both);
}

void FieldPicture::setPassingPoint(int x, int y, Colour colour, int width) {
    if (!m_screen.empty())
        drawDot(dotArea(x, y, width), width, colour.pixel(), Pictures::ScreenOnly);
    m_passing.push_back({x, y, colour, width});
}

void FieldPicture::drawDot(const PixelRect& dot, int width, std::uint32_t value, Pictures into) {
    if (width == 1) {
        fill(dot, value, into);
        return;
    }
    // Dots of odd and of even size cannot stand on quite the same centre. The odd ones are a
    // little fuller, so that each covers the smaller ones that were drawn before it.
    const double size = dot.width;
    const double squaredRadius = (size * size + (dot.width % 2 == 1 ? size : 0)) / 4;
    for (int line = 0; line < dot.height; ++line) {
        const double dy = line + 0.5 - size / 2;
        const double half = std::sqrt(squaredRadius - dy * dy);
        const int left = static_cast<int>(std::ceil(size / 2 - half - 0.5));
        fillRow(dot.x + left, dot.y + line, dot.width - 2 * left, value, into);
    }
    markDirty(dot);
}

Colour FieldPicture::pixel(int x, int y) const {
    const PixelRect dot = clipped({column(x), row(y), 1, 1});
    return dot.isEmpty() ? kBlack : Colour::fromRgb(m_screen[index(dot.x, dot.y)]);
}

void FieldPicture::ground(std::span<const int> heights, Colour colour, int width) {
    if (m_screen.empty()) return;
    const int pixels = width * m_dotScale;
    std::vector<int> tops(static_cast<std::size_t>(m_width), m_height);
    for (std::size_t x = 1; x < heights.size(); ++x) {
        const int left = column(static_cast<int>(x)) - (pixels - 1) / 2, top = row(heights[x]);
        for (int px = std::max(left, 0); px < std::min(left + pixels, m_width); ++px) {
            int& highest = tops[static_cast<std::size_t>(px)];
            highest = std::min(highest, top);
        }
    }
    fillBelow(tops, colour.pixel());
    markDirty({0, 0, m_width, m_height});
}

/// In both pictures each column from its top row on.
void FieldPicture::fillBelow(const std::vector<int>& tops, std::uint32_t value) {
    // Row by row, because a picture lies in memory in that order.
    for (int py = 0; py < m_height; ++py) {
        std::uint32_t* const pixel = m_screen.data() + index(0, py);
        for (std::size_t px = 0; px < tops.size(); ++px)
            pixel[px] = tops[px] <= py ? value : pixel[px];
    }
    for (auto& [first, pixels] : m_covered.runs()) {
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            const std::size_t px = (first + i) % tops.size(), py = (first + i) / tops.size();
            if (tops[px] <= static_cast<int>(py)) pixels[i] = value;
        }
    }
}

void FieldPicture::filledCircle(int x, int y, int radius, Colour colour) {
    if (m_screen.empty()) return;
    const double r = radius * (m_width - 1) / kUnits;
    const int reach = static_cast<int>(r);
    const int cx = column(x), cy = row(y);
    for (int dy = -reach; dy <= reach; ++dy) {
        const int half = toInt(std::sqrt(r * r - static_cast<double>(dy) * dy));
        fillRow(cx - half, cy + dy, 2 * half + 1, colour.pixel(), Pictures::Both);
    }
    markDirty({cx - reach - 1, cy - reach, 2 * reach + 3, 2 * reach + 1});
}

FieldPicture::LiftedPoint FieldPicture::liftPoint(int x, int y, int width) const {
    LiftedPoint lifted{{}, {}, m_making, m_passing.size()};
    if (m_screen.empty()) return lifted;
    lifted.area = clipped(dotArea(x, y, width));
    for (int line = 0; line < lifted.area.height; ++line) {
        const auto* from = m_screen.data() + index(lifted.area.x, lifted.area.y + line);
        lifted.pixels.insert(lifted.pixels.end(), from, from + lifted.area.width);
    }
    return lifted;
}

void FieldPicture::putBack(const LiftedPoint& lifted) {
    if (lifted.making != m_making) return;
    while (m_passing.size() > lifted.passing) m_passing.pop_back();
    if (lifted.area.isEmpty()) return;
    auto from = lifted.pixels.begin();
    for (int line = 0; line < lifted.area.height; ++line) {
        cover({lifted.area.x, lifted.area.y + line, lifted.area.width, 1});
        std::copy_n(from, lifted.area.width,
                    m_screen.data() + index(lifted.area.x, lifted.area.y + line));
        from += lifted.area.width;
    }
    markDirty(lifted.area);
}

void FieldPicture::setPieceImage(int side, PieceImage image) {
    m_pieces[side].image = std::move(image);
}

FieldPicture::PixelSize FieldPicture::pieceSize() const {
    return {toInt(kPieceWidth * (m_width - 1) / kUnits),
            toInt(kPieceHeight * (m_height - 1) / kUnits)};
}

void FieldPicture::placePiece(int side, int x, int groundHeight) {
    const PixelSize size = pieceSize();
    m_pieces[side].area = {column(x - kPieceWidth / 2), row(groundHeight + kPieceTop), size.width,
                           size.height};
}

void FieldPicture::hidePieces() {
    for (const int side : kSides) m_pieces[side].area = {};
}

PixelRect FieldPicture::pieceArea(int side) const {
    return m_pieces[side].area;
}

void FieldPicture::refresh() {
    ++m_making;
    m_covered.putBack(m_screen);
    m_passing.clear();
    for (const int side : kSides) {
        const PixelRect seen = clipped(m_pieces[side].seen());
        for (int py = seen.y; py < seen.y + seen.height; ++py) {
            cover({seen.x, py, seen.width, 1});
            for (int px = seen.x; px < seen.x + seen.width; ++px) {
                auto& pixel = m_screen[index(px, py)];
                pixel = blend(pixel, m_pieces[side].pixel(px, py));
            }
        }
    }
    markDirty({0, 0, m_width, m_height});
}

/// Where its image is; nowhere while it is hidden.
PixelRect FieldPicture::Piece::seen() const {
    return {area.x, area.y, std::min(area.width, image.width), std::min(area.height, image.height)};
}

/// The image's pixel that is seen there.
std::uint32_t FieldPicture::Piece::pixel(int px, int py) const {
    return image
        .pixels[static_cast<std::size_t>(py - area.y) * static_cast<std::size_t>(image.width) +
                static_cast<std::size_t>(px - area.x)];
}

bool FieldPicture::showsPiece(int side, int px, int py) const {
    if (common({px, py, 1, 1}, m_pieces[side].seen()).isEmpty()) return false;
    const std::uint32_t over = m_pieces[side].pixel(px, py);
    return over >> 24 != 0 && m_screen[index(px, py)] == blend(persistentPixel(px, py), over);
}

std::uint32_t FieldPicture::persistentPixel(int px, int py) const {
    const std::size_t at = index(px, py);
    const std::uint32_t* const covered = m_covered.find(at);
    return covered ? *covered : m_screen[at];
}

PixelRect FieldPicture::takeDirty() {
    return std::exchange(m_dirty, PixelRect{});
}

int FieldPicture::column(int x) const {
    return toInt((x - 1) * (m_width - 1) / kUnits);
}

int FieldPicture::row(int y) const {
    return m_height - 1 - toInt((y - 1) * (m_height - 1) / kUnits);
}

PixelRect FieldPicture::dotArea(int x, int y, int width) const {
    const int size = width * m_dotScale;
    return {column(x) - (size - 1) / 2, row(y) - (size - 1) / 2, size, size};
}

PixelRect FieldPicture::clipped(const PixelRect& area) const {
    const int left = std::clamp(area.x, 0, m_width), top = std::clamp(area.y, 0, m_height);
    const int right = std::clamp(area.x + area.width, left, m_width);
    const int bottom = std::clamp(area.y + area.height, top, m_height);
    return {left, top, right - left, bottom - top};
}

std::size_t FieldPicture::index(int px, int py) const {
    return static_cast<std::size_t>(py) * static_cast<std::size_t>(m_width) +
           static_cast<std::size_t>(px);
}

void FieldPicture::fillRow(int px, int py, int length, std::uint32_t value, Pictures into) {
    const PixelRect seen = clipped({px, py, length, 1});
    if (seen.isEmpty()) return;
    const std::size_t start = index(seen.x, seen.y);
    if (into == Pictures::Both)
        m_covered.fill(start, static_cast<std::size_t>(seen.width), value);
    else
        cover(seen);
    std::fill_n(m_screen.data() + start, seen.width, value);
}

/// Keeps a part of a row, which lies in the picture, from what comes upon the screen picture alone.
void FieldPicture::cover(const PixelRect& row) {
    m_covered.keep(m_screen, index(row.x, row.y), static_cast<std::size_t>(row.width));
}

void FieldPicture::fill(const PixelRect& area, std::uint32_t value, Pictures into) {
    const PixelRect seen = clipped(area);
    for (int py = seen.y; py < seen.y + seen.height; ++py)
        fillRow(seen.x, py, seen.width, value, into);
    markDirty(seen);
}

void FieldPicture::markDirty(const PixelRect& area) {
    m_dirty = united(m_dirty, clipped(area));
}

}  // namespace skylob
