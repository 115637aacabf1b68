#include "battle/qt/QtReportLabel.h"

#include "look/qt/QtLook.h"

namespace skylob {

namespace {
constexpr int kSmallestSize = 12;
}

QtReportLabel::QtReportLabel(QWidget* parent) : QLabel{parent} {
    setTextFormat(Qt::PlainText);
}

void QtReportLabel::showReport(const QString& text) {
    if (text == m_report) return;
    m_report = text;
    setAccessibleName(text);
    showFitting(*this, m_report, {kTextSize, kSmallestSize});
}

void QtReportLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    showFitting(*this, m_report, {kTextSize, kSmallestSize});
}

}  // namespace skylob
