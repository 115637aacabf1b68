// What is told to a screen reader while a round is played.

#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <QSet>

#include "battle/qt/QtMenGauge.h"
#include "battle/qt/QtReportLabel.h"
#include "controls/qt/GlintButtonAccessible.h"
#include "screen/qt/QtSpokenControls.h"
#include "tests/support/BattleScreen.h"
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
        const auto set = [&](const char* bar, int value) {
            QAccessible::queryAccessibleInterface(screen.bar(bar))
                ->valueInterface()
                ->setCurrentValue(value);
        };
        QString round;
        for (const auto& [speed, angle] :
             {Aim{100, 75}, {392, 80}, {379, 80}, {300, 75}, {381, 80}}) {
            const int side = screen.form->battle().state().Shooter;
            set(side == 1 ? "scrollSpeed(1)" : "scrollSpeed(2)", speed);
            set(side == 1 ? "scrollAngle(1)" : "scrollAngle(2)", angle);
            screen.shoot()->setFocus();
            told().clear();
            screen.shoot()->press();
            round += QStringLiteral("Shot of side %1\n").arg(side) + summary();
        }
        compareSpoken("round", round);
    }

    void speaksOfACountdownOnce() {
        QWidget window;
        QtReportLabel label{&window};
        window.show();
        label.showReport("Ann has shot.");
        label.showCountdown("A storm.  1:01");
        told().clear();
        label.showCountdown("A storm.  1:00");
        QCOMPARE(told().size(), 0);
        label.showCountdown("A storm.  0:59  Wait.");
        QCOMPARE(label.accessibleName(), "A storm. Wait.");
        label.showReport("Ann has shot.");
        QCOMPARE(summary(),
                 "    NameChanged  \"A storm. Wait.\"\n    Spoken  \"A storm. Wait.\"\n"
                 "    NameChanged  \"Ann has shot.\"\n    and 0 changes of state\n");
    }

  private:
    struct Told {
        const QObject* object;
        QAccessible::Event event;
        QString line;
    };
    static QList<Told>& told() {
        static QList<Told> all;
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
        line += " " + event->object()->objectName() + " \"" + of->text(QAccessible::Name) + '"';
        if (event->type() == QAccessible::DescriptionChanged)
            line += "\n        " + of->text(QAccessible::Description);
        if (event->type() == QAccessible::StateChanged) {
            const auto changed = static_cast<QAccessibleStateChangeEvent*>(event)->changedStates();
            if (changed.disabled) line += of->state().disabled ? " disabled" : " enabled";
            if (changed.focused) line += of->state().focused ? " focused" : " unfocused";
        }
        told().append({event->object(), event->type(), line});
    }

    static QString summary() {
        QString text;
        qsizetype states = 0;
        QSet<QPair<const QObject*, QString>> once;
        for (const auto& [object, event, line] : told()) {
            if (once.contains({object, line})) text += "    TWICE: " + line + '\n';
            once.insert({object, line});
            if (event == QAccessible::StateChanged)
                ++states;
            else
                text += "    " + line + '\n';
        }
        return text + QStringLiteral("    and %1 changes of state\n").arg(states);
    }
};

}  // namespace skylob::test

QTEST_MAIN(skylob::test::SpokenRoundTest)
#include "SpokenRoundTest.moc"
