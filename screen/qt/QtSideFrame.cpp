#include "screen/qt/QtSideFrame.h"

#include <QPainter>
#include <QPainterPath>
#include <QTextDocument>

#include "base/qt/QtSpokenWidget.h"
#include "look/qt/QtColour.h"
#include "look/qt/QtLook.h"

namespace skylob {

namespace {

constexpr Colour kResting = themeColour("resting");
constexpr QRect kBadge{11, 6, 18, 18};
constexpr int kTitleLeft = 36, kTitleRight = 8;

QPainterPath badgeShape(int side) {
    const QRectF box = QRectF{kBadge}.adjusted(0.75, 0.75, -0.75, -0.75);
    QPainterPath path;
    if (side == 1) {
        path.addEllipse(box);
    } else {
        const QPointF centre = box.center();
        path.addPolygon(QPolygonF{{{centre.x(), box.top()},
                                   {box.right(), centre.y()},
                                   {centre.x(), box.bottom()},
                                   {box.left(), centre.y()}}});
        path.closeSubpath();
    }
    return path;
}

}  // namespace

QtSideFrame::QtSideFrame(int side, QWidget* parent) : QGroupBox{parent}, m_side{side} {
    setProperty("side", side);
}

QColor QtSideFrame::colour() const {
    return toQColor(m_side == 1 ? themeColour("side-1") : themeColour("side-2"));
}

void QtSideFrame::setCaption(const QString& caption, const QString& spoken) {
    m_caption = caption;
    setSpokenName(*this, spoken.isEmpty() ? caption.trimmed() : spoken);
    fitCaption();
}

void QtSideFrame::fitCaption() {
    ensurePolished();
    const int room = width() - kTitleLeft - kTitleRight;
    QString shown = fontMetrics().elidedText(m_caption, Qt::ElideRight, room);
    setToolTip(shown == m_caption ? QString{} : Qt::convertFromPlainText(m_caption));
    setTitle(shown.replace(QLatin1Char{'&'}, QLatin1String{"&&"}));
}

void QtSideFrame::resizeEvent(QResizeEvent* event) {
    QGroupBox::resizeEvent(event);
    fitCaption();
}

void QtSideFrame::setBadge(Badge badge) {
    if (m_badge != badge) update();
    m_badge = badge;
}

void QtSideFrame::setTurn(bool isTurn) {
    setStyleProperty(*this, "turn", isTurn ? m_side : 0);
}

void QtSideFrame::paintEvent(QPaintEvent* event) {
    QGroupBox::paintEvent(event);
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = this->font();
    font.setPixelSize(kBadgeSize);
    font.setBold(true);
    painter.setFont(font);
    const QPainterPath badge = badgeShape(m_side);
    if (m_badge == Badge::Filled) {
        painter.fillPath(badge, isEnabled() ? colour() : toQColor(themeColour("badge-off")));
        painter.setPen(toQColor(themeColour("night")));
    } else {
        painter.strokePath(badge, QPen{toQColor(kResting), 1.5});
        painter.setPen(toQColor(kResting));
    }
    painter.drawText(kBadge, Qt::AlignCenter, QString::number(m_side));
}

}  // namespace skylob
