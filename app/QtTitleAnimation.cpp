#include "app/QtTitleAnimation.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "app/QtShapes.h"

namespace skylob {

namespace {

constexpr int kFrameMilliseconds = 60;

void fill(QPainter& painter, const QPolygonF& polygon, QRgb colour) {
    QPainterPath path;
    path.addPolygon(polygon);
    painter.fillPath(path, QColor::fromRgb(colour));
}

void paintSky(QPainter& painter) {
    QLinearGradient sky{0, 0, 0, kTitleHeight};
    sky.setColorAt(0, QColor{0x05, 0x07, 0x0F});
    sky.setColorAt(0.7, QColor{0x10, 0x1B, 0x38});
    sky.setColorAt(1, QColor{0x1B, 0x2C, 0x55});
    painter.fillRect(0, 0, kTitleWidth, kTitleHeight, sky);

    const QPointF moon{470, 72};
    QRadialGradient glow{moon, 110};
    glow.setColorAt(0, QColor{0x6F, 0xE0, 0xEC, 70});
    glow.setColorAt(0.4, QColor{0x6F, 0xE0, 0xEC, 38});
    glow.setColorAt(1, QColor{0x6F, 0xE0, 0xEC, 0});
    painter.fillRect(QRectF{moon.x() - 110, 0, 220, moon.y() + 110}, glow);
    QPainterPath disc, shadow;
    disc.addEllipse(moon, 36, 36);
    shadow.addEllipse(QPointF{492, 66}, 34, 34);
    painter.fillPath(disc.subtracted(shadow), QColor{0x6F, 0xE0, 0xEC});
}

void paintLand(QPainter& painter) {
    fill(painter,
         {{0, 222},
          {70, 196},
          {128, 221},
          {213, 176},
          {262, 205},
          {400, 190},
          {480, 210},
          {548, 182},
          {640, 220},
          {640, 280},
          {0, 280}},
         0x16244A);
    fill(painter,
         {{110, 280},
          {110, 256},
          {190, 238},
          {300, 106},
          {322, 92},
          {338, 103},
          {392, 183},
          {452, 239},
          {540, 258},
          {540, 280}},
         0x0F1834);
    fill(painter,
         {{322, 92}, {338, 103}, {392, 183}, {452, 239}, {396, 252}, {330, 151}, {334, 122}},
         0x1C2A55);
    fill(painter, {{0, 251}, {100, 258}, {320, 266}, {520, 257}, {640, 250}, {640, 280}, {0, 280}},
         0x0A1126);
}

QRect boundsOf(const TitleSpot& spot) {
    const double reach = spot.radius + spot.ringWidth / 2;
    // One pixel more, for the soft edge.
    return QRectF{spot.x - reach, spot.y - reach, 2 * reach, 2 * reach}.toAlignedRect().adjusted(
        -1, -1, 1, 1);
}

void paintSpot(QPainter& painter, const TitleSpot& spot) {
    QColor colour = QColor::fromRgb(spot.colour);
    colour.setAlpha(spot.alpha);
    const bool ring = spot.ringWidth > 0;
    painter.setPen(ring ? QPen{colour, spot.ringWidth} : QPen{Qt::NoPen});
    painter.setBrush(ring ? QBrush{} : QBrush{colour});
    painter.drawEllipse(QPointF{spot.x, spot.y}, spot.radius, spot.radius);
}

QRegion changed(const std::vector<TitleSpot>& before, const std::vector<TitleSpot>& after) {
    QRegion region;
    for (std::size_t i = 0; i < std::max(before.size(), after.size()); ++i) {
        const bool gone = i >= after.size(), isNew = i >= before.size();
        if (!gone && !isNew && before[i] == after[i]) continue;
        if (!isNew) region += boundsOf(before[i]);
        if (!gone) region += boundsOf(after[i]);
    }
    return region;
}

}  // namespace

QtTitleAnimation::QtTitleAnimation(const QtShapes& shapes, QWidget* parent)
    : QWidget{parent}, m_shapes{shapes}, m_spots{m_scene.at(0)} {
    setFixedSize(kTitleWidth, kTitleHeight);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(QStringLiteral("Two guns, one firing at the other over a mountain at night"));
    m_running.start();
}

void QtTitleAnimation::showMoment(double seconds) {
    std::vector<TitleSpot> spots = m_scene.at(seconds);
    update(changed(m_spots, spots));
    m_spots = std::move(spots);
}

void QtTitleAnimation::showEvent(QShowEvent*) {
    m_timer.start(kFrameMilliseconds, this);
}

void QtTitleAnimation::hideEvent(QHideEvent*) {
    m_timer.stop();
}

void QtTitleAnimation::timerEvent(QTimerEvent*) {
    showMoment(static_cast<double>(m_running.elapsed()) / 1000);
}

void QtTitleAnimation::makeBackdrop() {
    const double ratio = devicePixelRatioF();
    m_backdrop = QPixmap{(QSizeF{size()} * ratio).toSize()};
    m_backdrop.setDevicePixelRatio(ratio);
    QPainter painter{&m_backdrop};
    painter.setRenderHint(QPainter::Antialiasing);
    paintSky(painter);
    paintLand(painter);
    m_shapes.paint(painter, "piece1", {84, 232, 40, 40}, QtShapes::Edges::Smooth);
    m_shapes.paint(painter, "piece2", {516, 232, 40, 40}, QtShapes::Edges::Smooth);
}

void QtTitleAnimation::paintEvent(QPaintEvent* event) {
    if (m_backdrop.devicePixelRatio() != devicePixelRatioF() || m_backdrop.isNull()) makeBackdrop();
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPixmap(0, 0, m_backdrop);
    for (const TitleSpot& spot : m_spots) {
        if (event->region().intersects(boundsOf(spot))) paintSpot(painter, spot);
    }
}

}  // namespace skylob
