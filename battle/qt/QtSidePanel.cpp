#include "battle/qt/QtSidePanel.h"

#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>

#include "battle/qt/QtMenGauge.h"

namespace skylob {

namespace {

constexpr QRgb kRestingGauge = 0x5A6785;

QLabel* makeLabel(const QRect& place, QWidget* parent) {
    auto* label = new QLabel{parent};
    label->setGeometry(place);
    label->setTextFormat(Qt::PlainText);
    return label;
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
    : QtSideFrame{side, parent},
      m_labelSpeed{makeLabel(layout.labelSpeed, this)},
      m_labelAngle{makeLabel(layout.labelAngle, this)},
      m_labelMenLeft{makeLabel(layout.labelMenLeft, this)},
      m_scrollSpeed{makeScrollBar(SidePanel{}.scrollSpeed, layout.scrollSpeed, this)},
      m_scrollAngle{makeScrollBar(SidePanel{}.scrollAngle, layout.scrollAngle, this)},
      m_menGauge{new QtMenGauge{this}} {
    m_labelMenLeft->setProperty("role", QStringLiteral("men"));
    // After the role: measuring the caption settles the looks of all that is in the frame.
    setCaption(caption);
    m_menGauge->setGeometry(layout.menGauge);
    m_scrollSpeed->setAccessibleName(tr("Speed"));
    m_scrollAngle->setAccessibleName(tr("Angle"));
    connect(m_scrollSpeed, &QScrollBar::valueChanged, this,
            [this](int value) { emit speedMoved(this->side(), value); });
    connect(m_scrollAngle, &QScrollBar::valueChanged, this,
            [this](int value) { emit angleMoved(this->side(), value); });
}

void QtSidePanel::showPanel(const SidePanel& panel, bool isTurn) {
    m_labelSpeed->setText(QString::fromStdString(panel.labelSpeed));
    m_labelAngle->setText(QString::fromStdString(panel.labelAngle));
    m_labelMenLeft->setText(QString::fromStdString(panel.labelMenLeft));
    showValue(*m_scrollSpeed, panel.scrollSpeed);
    showValue(*m_scrollAngle, panel.scrollAngle);
    m_menGauge->show(panel.menLeft, isTurn ? colour().rgb() : kRestingGauge);
    setEnabled(panel.enabled);
    setTurn(isTurn);
    setBadge(isTurn ? Badge::Filled : Badge::Hollow);
}

}  // namespace skylob
