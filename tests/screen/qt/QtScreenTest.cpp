// Run by ctest on a display without translucent windows, and by end_to_end/fade.sh on one with
// them, where it is told to expect a fade.

#include "screen/qt/QtScreen.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QTest>
#include <QTimer>

#include "base/NullPorts.h"
#include "base/basSkylob.h"
#include "controls/qt/GlintButton.h"
#include "look/qt/QtShapes.h"
#include "screen/qt/QtMessageBoxes.h"
#include "screen/qt/QtRepeatGuard.h"
#include "screen/qt/QtWindowPlaces.h"
#include "tests/support/ScreenTest.h"

namespace skylob::test {

/// Leaves when it is asked to close, and counts what happens to it.
class Screen : public QtScreen {
  public:
    using QtScreen::leave, QtScreen::mayClose, QtScreen::QtScreen;
    int keys = 0, activations = 0, asked = 0, left = 0;
    GlintButton* primary = nullptr;

  protected:
    GlintButton* primaryButton() const override { return primary; }
    void Form_Activate() override { ++activations; }
    void askedToClose() override {
        ++asked;
        leave([this] { ++left; });
    }
    void keyPressEvent(QKeyEvent* event) override {
        ++keys;
        QtScreen::keyPressEvent(event);
    }
    void paintGround(QPainter& painter, const QRect&) override {
        painter.fillRect(0, 0, 10, 10, Qt::red);
    }
};

class QtScreenTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { settings.save("FadeStatus", "True"); }

    void takesNoInputWhileItFadesAndLeavesOnce() {
        Screen screen{{"name", "caption", {200, 100}}, ports};
        QCOMPARE(shared.FadeActive, fades);
        QCOMPARE(screen.windowOpacity(), fades ? 0.0 : 1.0);
        screen.show();
        QCOMPARE(screen.mayClose(), !fades);
        QTest::keyClick(&screen, Qt::Key_Escape);
        QCOMPARE(screen.keys, fades ? 0 : 1);
        if (fades) screen.close();
        QTRY_VERIFY(screen.mayClose());
        QCOMPARE(screen.windowOpacity(), 1.0);
        QTest::keyClick(&screen, Qt::Key_Escape);
        QCOMPARE(screen.keys, fades ? 1 : 2);
        QCOMPARE(screen.asked, 0);

        screen.hide();
        screen.show();
        QCOMPARE(screen.activations, 1);
        QVERIFY(screen.mayClose());
        for (int time = 0; time < 2; ++time) screen.close();
        QCOMPARE(screen.asked, 1);
        screen.leave([&screen] { ++screen.left; });
        QCOMPARE(screen.left, fades ? 0 : 1);
        QCOMPARE(screen.isVisible(), fades);
        QTRY_COMPARE(screen.left, 1);
        QVERIFY(!screen.isVisible());
        QVERIFY(!screen.mayClose());
        QCOMPARE(screen.windowOpacity(), fades ? 0.0 : 1.0);
    }

    void isRunUntilEscapeWhereItIsModal() {
        QtScreen::installAccessible();
        Screen screen{{"name", "caption", {200, 100}, Qt::Dialog}, ports};
        QCOMPARE(QAccessible::queryAccessibleInterface(&screen)->role(), QAccessible::Dialog);
        QTimer::singleShot(0, &screen, [&screen] {
            QCOMPARE(QApplication::activeModalWidget(), &screen);
            QTRY_VERIFY(screen.mayClose());
            QTest::keyClick(&screen, Qt::Key_Escape);
        });
        screen.showModal(nullptr);
        QCOMPARE(screen.left, 1);
        QVERIFY(!screen.isVisible());
    }

    void pressesItsPrimaryButtonOnceForEachPressOfEnter() {
        Screen screen{{"name", "caption", {200, 100}, Qt::Window, false}, ports};
        GlintButton button{"cmdOkay", shapes, &screen}, other{"cmdOther", shapes, &screen};
        for (GlintButton* each : {&button, &other}) each->design().initialiseProperties();
        int clicks = 0, others = 0;
        connect(&button, &GlintButton::Click, [&clicks] { ++clicks; });
        connect(&other, &GlintButton::Click, [&others] { ++others; });
        const QtRepeatGuard guard;
        const auto send = [&other](QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
                                   quint64 time, bool repeats) {
            QKeyEvent event{type, key, modifiers, "\r", repeats};
            event.setTimestamp(time);
            QCoreApplication::sendEvent(&other, &event);
            return event.isAccepted();
        };
        const auto press = [&](quint64 time, int key = Qt::Key_Return,
                               Qt::KeyboardModifiers modifiers = {}) {
            send(QEvent::KeyPress, key, modifiers, time, false);
            return clicks;
        };
        QCOMPARE(press(10), 0);  // on a screen without one
        screen.primary = &button;
        send(QEvent::KeyPress, Qt::Key_Return, {}, 20, true);
        QCOMPARE(clicks, 0);  // held since the screen before
        for (const quint64 repeat : {30u, 40u}) {
            send(QEvent::KeyRelease, Qt::Key_Return, {}, repeat, false);  // up and down at once
            QCOMPARE(press(repeat), 0);
        }
        send(QEvent::KeyRelease, Qt::Key_Return, {}, 50, false);
        QCOMPARE(press(60), 1);
        QCOMPARE(press(70, Qt::Key_Enter, Qt::KeypadModifier), 2);
        QCOMPARE(press(80, Qt::Key_Return, Qt::AltModifier), 2);
        send(QEvent::KeyRelease, Qt::Key_Return, {}, 85, false);
        send(QEvent::KeyPress, Qt::Key_Down, {}, 85, false);
        QCOMPARE(press(85), 3);  // what a program types can all come in one moment
        button.setEnabled(false);
        QCOMPARE(press(90), 3);
        QCOMPARE(others, 0);

        press(95, Qt::Key_Space);
        QList<int> repeating;
        for (const int key : {Qt::Key_Space, Qt::Key_Escape, Qt::Key_F11, Qt::Key_S, Qt::Key_Left})
            for (const quint64 time : {100u, 110u}) {
                const auto held = key == Qt::Key_S ? Qt::AltModifier : Qt::NoModifier;
                send(QEvent::KeyRelease, key, held, time, false);
                if (!send(QEvent::KeyPress, key, held, time, false)) repeating << key;
            }
        QCOMPARE(repeating, (QList<int>{Qt::Key_Left, Qt::Key_Left}));
        QCOMPARE(others, 1);
    }

    void scrollsWhereItsOnlySizeDoesNotFit() {
        Screen screen{{"name", "caption", {200, 100}, Qt::Window, false}, ports};
        QLineEdit upper{&screen}, lower{&screen};
        QLabel text{"as wide as it is", &screen};  // only when it is shown
        upper.setGeometry(10, 10, 50, 20);
        lower.setGeometry(140, 70, 50, 20);
        upper.setFocus();
        const auto isInView = [](QWidget& widget) {
            return widget.visibleRegion().boundingRect() == widget.rect();
        };
        screen.fitInto({120, 60});
        screen.show();
        QVERIFY(QTest::qWaitForWindowActive(&screen));
        QCOMPARE(screen.size(), QSize(120, 60));
        QCOMPARE(QApplication::focusWidget(), &upper);
        for (QWidget* field : {&lower, &upper}) {
            field->setFocus();
            QVERIFY(isInView(*field));
            const bool showsGround = screen.grab().toImage().pixel(2, 2) == 0xFFFF0000u;
            QCOMPARE(showsGround, field == &upper);
        }
        screen.fitInto({500, 60});
        QCOMPARE(screen.size(), QSize(200 + 15, 60));  // and the bar beside it
        screen.fitInto({500, 500});
        QCOMPARE(screen.size(), QSize(200, 100));
        QTRY_VERIFY(isInView(upper) && isInView(lower));
        QCOMPARE(text.size(), text.sizeHint());
    }

    void goesWithTheFocusInWhatItScrolls() {
        Screen screen{{"name", "caption", {100, 100}, Qt::Window, false}, ports};
        auto* field = new QLineEdit{&screen};
        screen.fitInto({100, 60});
        screen.show();
        field->setFocus();
        QTRY_VERIFY(field->hasFocus());
        delete screen.findChild<QScrollArea*>();
        QVERIFY(!QApplication::focusWidget());
    }

    void comesBackToWhereItWasLeft() {
        const QRect room = QGuiApplication::primaryScreen()->availableGeometry().adjusted(
            2, 2, -2, -2);  // this platform's frames
        const std::tuple<const char*, QRect, Qt::WindowStates> cases[] = {
            {"50,60,300,150,normal", {50, 60, 300, 150}, {}},
            {"9000,-900,300,150,normal", {room.right() - 299, 2, 300, 150}, {}},
            {"9,9,9000,9000,normal", room, {}},
            {"50,60,30,15,normal", {50, 60, 200, 100}, {}},
            {"50,60,300,150,maximised", {50, 60, 300, 150}, Qt::WindowMaximized},
            {"50,60,300,150,fullscreen", {50, 60, 300, 150}, Qt::WindowFullScreen}};
        QWidget before;
        before.show();
        for (const auto& [remembered, place, state] : cases) {
            windows.keep("name", remembered);
            for (int time = 0; time < 2; ++time) {  // as given, and as it has noted that itself
                Screen screen{{"name", "", {200, 100}, Qt::Window, true, true}, ports};
                bringToPlace(screen, windows, &before, PlaceMemory::OnAnyDisplay);
                screen.show();
                QTRY_VERIFY(screen.mayClose());
                QCOMPARE(screen.windowState() & ~Qt::WindowActive, state);
                QCOMPARE(state ? screen.normalGeometry() : screen.geometry(), place);
                screen.close();
                QTRY_COMPARE(screen.left, 1);
            }
        }
    }

    void answersBoxesFromTheKeyboard() {
        QtMessageBoxes boxes{shapes};
        const auto answer = [&](auto show, std::vector<std::pair<Qt::Key, bool>> keys) {
            QTimer::singleShot(0, this, [keys] {
                QWidget* const box = QApplication::activeModalWidget();
                QVERIFY(QTest::qWaitForWindowActive(box));
                auto* const accessible = QAccessible::queryAccessibleInterface(box);
                QCOMPARE(accessible->role(), QAccessible::Dialog);
                QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Title [*]"));
                for (const auto& [key, alt] : keys)
                    QTest::keyClick(box->focusWidget(), key,
                                    alt ? Qt::AltModifier : Qt::NoModifier);
            });
            return show();
        };
        const auto question = [&](BoxAnswer preset, std::vector<std::pair<Qt::Key, bool>> keys) {
            const MessageBox box{"Title [*]", "?", BoxIcon::Question, BoxButtons::YesNo, preset};
            return answer([&] { return boxes.show(box); }, keys);
        };
        QVERIFY(question(BoxAnswer::Yes, {{Qt::Key_Return, false}}) == BoxAnswer::Yes);
        QVERIFY(question(BoxAnswer::No, {{Qt::Key_Enter, false}}) == BoxAnswer::No);
        QVERIFY(question(BoxAnswer::No, {{Qt::Key_Space, false}}) == BoxAnswer::No);
        QVERIFY(question(BoxAnswer::No, {{Qt::Key_Y, true}}) == BoxAnswer::Yes);
        QVERIFY(question(BoxAnswer::Yes, {{Qt::Key_N, true}}) == BoxAnswer::No);
        QVERIFY(question(BoxAnswer::Yes, {{Qt::Key_Escape, false}}) == BoxAnswer::No);
        QVERIFY(question(BoxAnswer::Yes, {{Qt::Key_Tab, false}, {Qt::Key_Return, false}}) ==
                BoxAnswer::No);

        const auto entry = [&](std::vector<std::pair<Qt::Key, bool>> keys) {
            return answer([&] { return boxes.ask({"Title [*]", "to...", "A\xCC\x8Asa"}); }, keys);
        };
        QCOMPARE(entry({{Qt::Key_Return, false}}).value_or("none"), std::string{"\xC3\x85sa"});
        QCOMPARE(entry({{Qt::Key_B, false}, {Qt::Key_O, true}}).value_or("none"), std::string{"b"});
        for (const auto& [key, alt] : {std::pair{Qt::Key_C, true}, {Qt::Key_Escape, false}})
            QVERIFY2(!entry({{key, alt}}), alt ? "Cancel" : "Esc");
    }

  private:
    const bool fades = qEnvironmentVariableIsSet("SKYLOB_EXPECT_FADES");
    basSkylob shared;
    MemorySettings settings;
    const QtShapes shapes{programDrawings()};
    MemoryWindows windows;
    const QtScreenPorts ports{shared, settings, shapes, windows};
};

}  // namespace skylob::test

int QtScreenTest_main(int argc, char** argv) {
    return skylob::test::runTest<skylob::test::QtScreenTest>(argc, argv);
}
#include "QtScreenTest.moc"
