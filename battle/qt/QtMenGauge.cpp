#include "battle/qt/QtMenGauge.h"

#include <QPainter>
#include <algorithm>

#include "look/qt/QtColour.h"

namespace skylob {

QtMenGauge::QtMenGauge(QWidget* parent) : QWidget{parent} {
    setAttribute(Qt::WA_TransparentForMouseEvents);
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
    men.setWidth(men.width() * std::clamp(m_menLeft, 0, 100) / 100);
    painter.fillRect(men, m_colour);
}

}  // namespace skylob
