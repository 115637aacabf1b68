#include "battle/qt/QtSidePanel.h"

#include <QLabel>
#include <QScrollBar>

#include "base/qt/QtSpokenWidget.h"
#include "battle/qt/QtBarInput.h"
#include "battle/qt/QtMenGauge.h"
#include "look/qt/QtColour.h"

namespace skylob {

namespace {

QString nameOf(const char* control, int side) {
    return QStringLiteral("%1(%2)").arg(QLatin1String{control}).arg(side);
}

QLabel* makeLabel(const QString& name, const QRect& place, QWidget* parent) {
    auto* label = new QLabel{parent};
    label->setObjectName(name);
    label->setGeometry(place);
    label->setTextFormat(Qt::PlainText);
    return label;
}

}  // namespace

QScrollBar* makeScrollBar(const QString& name, const BarRange& range, const QRect& place,
                          QWidget* parent) {
    auto* widget = new QScrollBar{Qt::Horizontal, parent};
    widget->setObjectName(name);
    widget->setRange(range.minimum, range.maximum);
    widget->setSingleStep(1);
    widget->setPageStep(range.largeChange);
    widget->setGeometry(place);
    widget->setFocusPolicy(Qt::StrongFocus);
    // A scroll bar takes "right" and "up" for less, as it suits a document; here it sets a value.
    widget->setInvertedControls(false);
    new QtBarWheel{widget};
    return widget;
}

QtSidePanel::QtSidePanel(int side, const QString& caption, const SidePanelLayout& layout,
                         QWidget* parent)
    : QtSideFrame{side, parent},
      m_labelSpeed{makeLabel(nameOf("labelSpeed", side), layout.labelSpeed, this)},
      m_labelAngle{makeLabel(nameOf("labelAngle", side), layout.labelAngle, this)},
      m_labelMenLeft{makeLabel(nameOf("labelMenLeft", side), layout.labelMenLeft, this)},
      m_labelLastSpeed{makeLabel(nameOf("labelLastSpeed", side), layout.labelLastSpeed, this)},
      m_labelLastAngle{makeLabel(nameOf("labelLastAngle", side), layout.labelLastAngle, this)},
      m_labelLastLanding{
          makeLabel(nameOf("labelLastLanding", side), layout.labelLastLanding, this)},
      m_scrollSpeed{
          makeScrollBar(nameOf("scrollSpeed", side), kSpeedRange, layout.scrollSpeed, this)},
      m_scrollAngle{
          makeScrollBar(nameOf("scrollAngle", side), kAngleRange, layout.scrollAngle, this)},
      m_menGauge{new QtMenGauge{this}} {
    m_labelMenLeft->setProperty("role", QStringLiteral("men"));
    for (QLabel* last : {m_labelLastSpeed, m_labelLastAngle, m_labelLastLanding})
        last->setProperty("role", QStringLiteral("note"));
    for (QLabel* label : {m_labelSpeed, m_labelAngle, m_labelMenLeft, m_labelLastSpeed,
                          m_labelLastAngle, m_labelLastLanding})
        keepFromReaders(*label);  // bars, gauge and the field tell that
    // After the role: measuring the caption settles the looks of all that is in the frame.
    setCaption(caption);
    m_menGauge->setGeometry(layout.menGauge);
    m_scrollSpeed->setAccessibleName(tr("Speed"));
    m_scrollAngle->setAccessibleName(tr("Angle"));
    setSpokenKey(*m_scrollSpeed, Qt::ALT | Qt::Key_P);
    setSpokenKey(*m_scrollAngle, Qt::ALT | Qt::Key_A);
    new QtBarDigits{m_scrollSpeed, kSpeedRange};
    new QtBarDigits{m_scrollAngle, kAngleRange};
    connect(m_scrollSpeed, &QScrollBar::valueChanged, this,
            [this](int value) { emit speedMoved(this->side(), value); });
    connect(m_scrollAngle, &QScrollBar::valueChanged, this,
            [this](int value) { emit angleMoved(this->side(), value); });
}

void QtSidePanel::showPanel(const SidePanel& panel, bool isTurn) {
    m_labelSpeed->setText(QString::fromStdString(panel.labelSpeed));
    m_labelAngle->setText(QString::fromStdString(panel.labelAngle));
    m_labelMenLeft->setText(QString::fromStdString(panel.labelMenLeft));
    m_labelLastSpeed->setText(QString::fromStdString(panel.labelLastSpeed));
    m_labelLastAngle->setText(QString::fromStdString(panel.labelLastAngle));
    m_labelLastLanding->setText(QString::fromStdString(panel.labelLastLanding));
    m_scrollSpeed->setValue(panel.scrollSpeed);
    m_scrollAngle->setValue(panel.scrollAngle);
    m_menGauge->showMen(panel.menLeft, isTurn ? colour() : toQColor(themeColour("gauge-off")));
    setEnabled(panel.enabled);
    setTurn(isTurn);
    setBadge(isTurn ? Badge::Filled : Badge::Hollow);
}

}  // namespace skylob
