#include "battle/qt/QtReportLabel.h"

#include <QAccessible>
#include <QRegularExpression>

#include "base/qt/QtSpokenWidget.h"
#include "look/qt/QtLook.h"

namespace skylob {

namespace {

constexpr int kSmallestSize = 12;

QString withoutClock(QString text) {
    static const QRegularExpression clock{QStringLiteral("\\d+:\\d\\d")};
    return text.remove(clock).simplified();
}

}  // namespace

QtReportLabel::QtReportLabel(QWidget* parent) : QLabel{parent} {
    setTextFormat(Qt::PlainText);
    // Readers speak these when they come up, this one with the screen.
    setSpokenRole(*this, QAccessible::Notification);
    setAccessibleName(tr("The battle begins"));
}

void QtReportLabel::showReport(const QString& text) {
    if (text == m_text) return;
    put(text, text);
    if (text.isEmpty() || text == m_report) return;
    m_report = text;
    speak();
}

void QtReportLabel::showCountdown(const QString& text) {
    if (text == m_text) return;
    const QString spoken = withoutClock(text);
    const bool isNew = spoken != accessibleName();
    put(text, spoken);
    if (isNew) speak();
}

void QtReportLabel::put(const QString& text, const QString& spoken) {
    m_text = text;
    setSpokenName(*this, spoken.isEmpty() ? tr("The battle begins") : spoken);
    showFitting(*this, text, {kTextSize, kSmallestSize});
}

void QtReportLabel::speak() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event{this, accessibleName()};
#else
    QAccessibleEvent event{this, QAccessible::ObjectShow};
#endif
    QAccessible::updateAccessibility(&event);
}

void QtReportLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    showFitting(*this, m_text, {kTextSize, kSmallestSize});
}

}  // namespace skylob
