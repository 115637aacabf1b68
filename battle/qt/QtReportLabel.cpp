#include "battle/qt/QtReportLabel.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QRegularExpression>
#include <QThread>

#include "base/qt/QtSpokenWidget.h"
#include "look/qt/QtLook.h"

namespace skylob {

namespace {

constexpr int kSmallestSize = 12;
constexpr int kForQuestions = 200, kSlice = 5;  // milliseconds
constexpr bool kHasAnnouncements = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);

QString withoutClock(QString text) {
    static const QRegularExpression clock{QStringLiteral("\\d+:\\d\\d")};
    return text.remove(clock).simplified();
}

/// An event without the text makes readers ask for it. They are answered at once, because the
/// thread can be blocked until the next report stands here.
void answerReaders() {
    if (!QAccessible::isActive()) return;
    for (const QDeadlineTimer end{kForQuestions}; !end.hasExpired(); QThread::msleep(kSlice))
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::X11ExcludeTimers);
}

}  // namespace

QtReportLabel::QtReportLabel(QWidget* parent) : QLabel{parent} {
    setTextFormat(Qt::PlainText);
    // Without announcements, what readers speak when it comes up is a notification.
    if (!kHasAnnouncements) setSpokenRole(*this, QAccessible::Notification);
    hide();
}

void QtReportLabel::showReport(const QString& text) {
    if (text == m_text) return;
    put(text, text);
    if (text == m_report) return;
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
    setAccessibleName(spoken);
    showFitting(*this, text, {kTextSize, kSmallestSize});
    if (text.isEmpty()) hide();
}

void QtReportLabel::speak() {
    if (m_text.isEmpty()) return;
    const bool comesUp = isHidden();
    show();
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event{this, accessibleName()};
    QAccessible::updateAccessibility(&event);
#else
    if (!comesUp) {  // otherwise the toolkit has told of it
        QAccessibleEvent event{this, QAccessible::ObjectShow};
        QAccessible::updateAccessibility(&event);
    }
    answerReaders();
#endif
}

void QtReportLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    showFitting(*this, m_text, {kTextSize, kSmallestSize});
}

}  // namespace skylob
