#include "title/qt/QtTitleAnimation.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "base/qt/QtSpokenWidget.h"
#include "title/qt/QtTitlePicture.h"

namespace skylob {

namespace {

constexpr int kFrameMilliseconds = 66;

QRect boundsOf(const TitleSpot& spot) {
    const double reach = spot.radius + spot.ringWidth / 2;
    // One pixel more, for the soft edge.
    return QRectF{spot.x - reach, spot.y - reach, 2 * reach, 2 * reach}.toAlignedRect().adjusted(
        -1, -1, 1, 1);
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
    setSpokenRole(*this, QAccessible::Graphic);
    setAccessibleName(QStringLiteral("Two guns, one firing at the other over a mountain at night"));
    m_running.start();
}

void QtTitleAnimation::showMoment(double seconds) {
    std::vector<TitleSpot> spots = m_scene.at(seconds);
    update(changed(m_spots, spots));
    m_spots = std::move(spots);
}

void QtTitleAnimation::resume() {
    if (isVisible()) m_timer.start(kFrameMilliseconds, this);
}

void QtTitleAnimation::showEvent(QShowEvent*) {
    resume();
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
    paintTitleBackdrop(painter, m_shapes);
}

void QtTitleAnimation::paintEvent(QPaintEvent* event) {
    if (m_backdrop.devicePixelRatio() != devicePixelRatioF() || m_backdrop.isNull()) makeBackdrop();
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPixmap(0, 0, m_backdrop);
    for (const TitleSpot& spot : m_spots) {
        if (event->region().intersects(boundsOf(spot))) paintTitleSpot(painter, spot);
    }
}

}  // namespace skylob
