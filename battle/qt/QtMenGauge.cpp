#include "battle/qt/QtMenGauge.h"

#include <QPainter>
#include <algorithm>

#include "base/qt/QtSpokenWidget.h"
#include "look/qt/QtColour.h"

namespace skylob {

namespace {

constexpr int kFull = 100;

class AccessibleGauge : public QtSpokenWidget, public QAccessibleValueInterface {
  public:
    explicit AccessibleGauge(QtMenGauge* gauge) : QtSpokenWidget{gauge, QAccessible::ProgressBar} {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QtSpokenWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? currentValue().toString() : QtSpokenWidget::text(kind);
    }
    QVariant currentValue() const override { return static_cast<QtMenGauge*>(widget())->menLeft(); }
    void setCurrentValue(const QVariant&) override {}
    QVariant minimumValue() const override { return 0; }
    QVariant maximumValue() const override { return kFull; }
    QVariant minimumStepSize() const override { return 1; }
};

QAccessibleInterface* makeAccessible(const QString&, QObject* object) {
    auto* gauge = qobject_cast<QtMenGauge*>(object);
    return gauge ? new AccessibleGauge{gauge} : nullptr;
}

}  // namespace

QtMenGauge::QtMenGauge(QWidget* parent) : QWidget{parent} {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(tr("Men left"));
}

void QtMenGauge::installAccessible() {
    QAccessible::removeFactory(makeAccessible);
    QAccessible::installFactory(makeAccessible);
}

void QtMenGauge::showMen(int menLeft, const QColor& colour) {
    if (menLeft == m_menLeft && colour == m_colour) return;
    m_menLeft = menLeft;
    m_colour = colour;
    update();
}

void QtMenGauge::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.fillRect(rect(), toQColor(themeColour("line")));
    painter.fillRect(rect().adjusted(1, 1, -1, -1), toQColor(themeColour("well")));
    QRect men = rect().adjusted(1, 1, -1, -1);
    men.setWidth(men.width() * std::clamp(m_menLeft, 0, kFull) / kFull);
    painter.fillRect(men, m_colour);
}

}  // namespace skylob
