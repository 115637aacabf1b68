#include "battle/QtSidePanel.h"

#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QSignalBlocker>

#include "app/QtLook.h"
#include "battle/QtMenGauge.h"

namespace skylob {

namespace {

constexpr QRgb kSideColours[] = {0xFF917C, 0xE39BFF};
constexpr QRgb kRestingGauge = 0x5A6785;
constexpr QRgb kRestingBadge = 0x8E9BB8;
constexpr QRgb kFlightBadge = 0xB4B4B4;
constexpr QRgb kNight = 0x0D1220;
constexpr QRect kBadge{11, 6, 18, 18};
constexpr int kTitleLeft = 36;

QLabel* makeLabel(const QRect& place, QWidget* parent) {
    auto* label = new QLabel{parent};
    label->setGeometry(place);
    label->setTextFormat(Qt::PlainText);
    return label;
}

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

QScrollBar* makeScrollBar(const ScrollBar& bar, const QRect& place, QWidget* parent) {
    auto* widget = new QScrollBar{Qt::Horizontal, parent};
    widget->setRange(bar.minimum, bar.maximum);
    widget->setSingleStep(1);
    widget->setPageStep(bar.largeChange);
    widget->setGeometry(place);
    widget->setFocusPolicy(Qt::StrongFocus);
    // A scroll bar takes "right" and "up" for less, as it suits a document; here it sets a value.
    widget->setInvertedControls(false);
    return widget;
}

void showValue(QScrollBar& widget, const ScrollBar& bar) {
    const QSignalBlocker quiet{widget};
    widget.setValue(bar.value);
}

QtSidePanel::QtSidePanel(int side, const QString& caption, const SidePanelLayout& layout,
                         QWidget* parent)
    : QGroupBox{parent},
      m_side{side},
      m_labelSpeed{makeLabel(layout.labelSpeed, this)},
      m_labelAngle{makeLabel(layout.labelAngle, this)},
      m_labelMenLeft{makeLabel(layout.labelMenLeft, this)},
      m_scrollSpeed{makeScrollBar(SidePanel{}.scrollSpeed, layout.scrollSpeed, this)},
      m_scrollAngle{makeScrollBar(SidePanel{}.scrollAngle, layout.scrollAngle, this)},
      m_menGauge{new QtMenGauge{this}} {
    setProperty("side", side);
    setTitle(QString{caption}.replace(QLatin1Char{'&'}, QLatin1String{"&&"}));
    setAccessibleName(caption);
    m_labelMenLeft->setProperty("role", "men");
    m_menGauge->setGeometry(layout.menGauge);
    m_scrollSpeed->setAccessibleName(tr("Speed"));
    m_scrollAngle->setAccessibleName(tr("Angle"));
    connect(m_scrollSpeed, &QScrollBar::valueChanged, this,
            [this](int value) { emit speedMoved(m_side, value); });
    connect(m_scrollAngle, &QScrollBar::valueChanged, this,
            [this](int value) { emit angleMoved(m_side, value); });
}

void QtSidePanel::showPanel(const SidePanel& panel, bool isTurn) {
    m_labelSpeed->setText(QString::fromStdString(panel.labelSpeed));
    m_labelAngle->setText(QString::fromStdString(panel.labelAngle));
    m_labelMenLeft->setText(QString::fromStdString(panel.labelMenLeft));
    showValue(*m_scrollSpeed, panel.scrollSpeed);
    showValue(*m_scrollAngle, panel.scrollAngle);
    m_menGauge->show(panel.menLeft, isTurn ? kSideColours[m_side - 1] : kRestingGauge);
    setEnabled(panel.enabled);
    setStyleProperty(*this, "turn", isTurn ? m_side : 0);
    if (m_isTurn != isTurn) update();
    m_isTurn = isTurn;
}

void QtSidePanel::paintEvent(QPaintEvent* event) {
    QGroupBox::paintEvent(event);
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = this->font();
    font.setPixelSize(11);
    font.setBold(true);
    painter.setFont(font);
    const QPainterPath badge = badgeShape(m_side);
    if (m_isTurn) {
        painter.fillPath(badge, QColor{isEnabled() ? kSideColours[m_side - 1] : kFlightBadge});
        painter.setPen(QColor{kNight});
    } else {
        painter.strokePath(badge, QPen{QColor{kRestingBadge}, 1.5});
        painter.setPen(QColor{kRestingBadge});
    }
    painter.drawText(kBadge, Qt::AlignCenter, QString::number(m_side));
}

}  // namespace skylob
