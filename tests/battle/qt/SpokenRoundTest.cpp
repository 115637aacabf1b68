// What is told to a screen reader while a round is played.

#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "battle/qt/QtMenGauge.h"
#include "battle/qt/QtReportLabel.h"
#include "controls/qt/GlintButtonAccessible.h"
#include "screen/qt/QtSpokenControls.h"
#include "tests/support/BattleScreen.h"
#include "tests/support/ScreenTest.h"
#include "tests/support/Spoken.h"

namespace skylob::test {

class SpokenRoundTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        GlintButtonAccessible::install();
        QtScreen::installAccessible();
        installSpokenControls();
        QtMenGauge::installAccessible();
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
        QAccessible::installUpdateHandler(hear);
    }
    void cleanupTestCase() { QAccessible::installUpdateHandler(nullptr); }

    /// Changes of the controls' state are counted, everything else is written down.
    void speaksOnceAShot() {
        Screen screen;
        QString round;
        for (const Aim& aim : {Aim{100, 75}, {392, 80}, {379, 80}, {300, 75}, {381, 80}}) {
            const auto side = QStringLiteral("(%1)").arg(screen.form->battle().state().Shooter);
            const auto set = [&](const QString& bar, int value) {
                auto* const found = screen.bar(qPrintable(bar + side));
                QAccessible::queryAccessibleInterface(found)->valueInterface()->setCurrentValue(
                    value);
            };
            set("scrollSpeed", aim.speed);
            set("scrollAngle", aim.angle);
            screen.shoot()->setFocus();
            told().clear();
            screen.shoot()->press();
            round += "Shot of side " + side + '\n' + summary();
        }
        compareSpoken("round", round);
    }

    void speaksOfACountdownOnce() {
        QtReportLabel label{nullptr};
        label.showReport("Ann has shot.");
        label.showCountdown("A storm.  1:01");
        told().clear();
        label.showCountdown("A storm.  1:00");
        QCOMPARE(summary(), "    and 0 changes of state\n");
        label.showCountdown("A storm.  0:59  Wait.");
        label.showReport("Ann has shot.");
        QCOMPARE(summary(),
                 "    NameChanged  \"A storm. Wait.\"\n    Spoken  \"A storm. Wait.\"\n"
                 "    NameChanged  \"Ann has shot.\"\n    and 0 changes of state\n");
    }

  private:
    /// With the object that it is of, as a number.
    static QStringList& told() {
        static QStringList all;
        return all;
    }

    static bool isSpoken(const QAccessibleEvent& event) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
        return event.type() == QAccessible::Announcement;
#else
        return event.type() == QAccessible::ObjectShow;
#endif
    }

    static void hear(QAccessibleEvent* event) {
        const QAccessibleInterface* const of = event->accessibleInterface();
        QString line = isSpoken(*event) ? "Spoken" : qAccessibleEventString(event->type());
        if (event->type() == QAccessible::Focus && !of->state().focused) line += " lost";
        if (event->type() == QAccessible::StateChanged && of->state().disabled) line += " disabled";
        line += " " + event->object()->objectName() + " \"" + of->text(QAccessible::Name) + '"';
        if (event->type() == QAccessible::DescriptionChanged)
            line += "\n        " + of->text(QAccessible::Description);
        told() << QString::number(quintptr(event->object())) + "    " + line + '\n';
    }

    static QString summary() {
        QString text;
        int states = 0;
        for (const QString& each : std::as_const(told())) {
            const bool isTwice = told().count(each) > 1;
            const QString line = each.mid(each.indexOf(' '));
            const bool isState = line.contains("StateChanged");
            states += isState;
            if (isTwice || !isState) text += (isTwice ? "TWICE" : "") + line;
        }
        return text + QStringLiteral("    and %1 changes of state\n").arg(states);
    }
};

}  // namespace skylob::test

int SpokenRoundTest_main(int argc, char** argv) {
    return skylob::test::runTest<skylob::test::SpokenRoundTest>(argc, argv);
}
#include "SpokenRoundTest.moc"
