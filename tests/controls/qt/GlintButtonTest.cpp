#include "controls/qt/GlintButton.h"

#include <QAccessible>
#include <QDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QTest>
#include <functional>

#include "controls/qt/GlintButtonAccessible.h"
#include "controls/qt/QtPropertyBagFile.h"
#include "look/qt/QtShapes.h"
#include "tests/support/CapturedErrors.h"
#include "tests/support/ScreenTest.h"

using namespace skylob;

/// A window with two buttons, the first of which writes its events down.
struct Form : QObject {
    Form() {
        qApp->installEventFilter(this);
        window.setGeometry(100, 100, 300, 200);
        for (GlintButton* button : {&first, &second}) {
            button->design().initialiseProperties();
            button->design().setBackColor(0x735F16);
            button->design().setForeColor(0xFFFFFF);
            button->setGeometry(20, button == &first ? 20 : 100, 100, 40);
        }
        design.setCaption("&First");
        note(&GlintButton::Click, "Click");
        note(&GlintButton::MouseDown, "MouseDown");
        note(&GlintButton::MouseUp, "MouseUp");
        note(&GlintButton::MouseIn, "MouseIn");
        note(&GlintButton::MouseOver, "MouseOver");
        note(&GlintButton::MouseOut, "MouseOut");
        note(&GlintButton::KeyPress, "KeyPress");
        window.show();
        window.activateWindow();
        (void)QTest::qWaitForWindowActive(&window);
    }

    /// Counts the ticks of all hover timers.
    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* timer = qobject_cast<QTimer*>(object);
        hoverTicks += event->type() == QEvent::Timer && timer && timer->interval() == 3;
        return false;
    }
    template <typename Signal>
    void note(Signal signal, const QString& name) {
        QObject::connect(&first, signal, &window, [this, name] { events << name; });
    }
    /// Moves the pointer for real, as far as the platform has one.
    void moveTo(QWidget& widget, QPoint place, Qt::MouseButtons held = {}) {
        QCursor::setPos(widget.mapToGlobal(place));
        const QPoint inFirst = first.mapFromGlobal(QCursor::pos());
        QMouseEvent move{
            QEvent::MouseMove, QPointF{inFirst}, QPointF{QCursor::pos()}, Qt::NoButton, held, {}};
        QApplication::sendEvent(&first, &move);
    }
    /// The events since the last call, in brackets while the button is drawn pressed.
    QString taken() {
        const QString all = std::exchange(events, {}).join(' ');
        return first.state().currentState == kStatePressed ? "(" + all + ")" : all;
    }
    /// The same after each action.
    QString after(QList<QTest::MouseAction> actions, Qt::MouseButton button = Qt::LeftButton,
                  QPoint place = {}) {
        QStringList all;
        for (const auto action : actions) {
            QTest::mouseEvent(action, &first, button, {}, place);
            all << taken();
        }
        return all.join(", ");
    }
    QString after(QTest::KeyAction action, Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyEvent(action, window.focusWidget(), key, held);
        return taken();
    }
    QColor colour(int x, int y) { return first.grab().toImage().pixelColor(x, y); }
    QColor faceColour() { return colour(50, 35); }

    const QtShapes shapes{programDrawings()};
    QStringList events;
    int hoverTicks = 0;
    QWidget window;
    GlintButton first{"cmdFirst", shapes, &window}, second{"cmdSecond", shapes, &window};
    GlintDesign& design = first.design();
};

class GlintButtonTest : public QObject {
    Q_OBJECT

    using enum QTest::MouseAction;

  private slots:
    void clicksOnceForEachPressAndRelease() {
        Form form;
        // After a click the press is used up.
        QCOMPARE(form.after({MouseClick, MouseRelease}), "MouseDown MouseUp Click, MouseUp");
        QCOMPARE(form.after({MouseClick}, Qt::RightButton), "MouseDown MouseUp");
        // The second press of a double click arrives as such, and its release ends in a click.
        QCOMPARE(form.after({MouseClick, MouseDClick, MouseRelease}),
                 "MouseDown MouseUp Click, (MouseDown), MouseUp Click");
        QCOMPARE(form.after({MousePress}), "(MouseDown)");
        form.moveTo(form.second, {50, 20}, Qt::LeftButton);
        QCOMPARE(form.taken(), "");
        QCOMPARE(form.after({MouseRelease}, Qt::LeftButton, {50, 100}), "MouseUp");  // dragged off
        form.design.setEnabled(false);
        form.first.press();
        QCOMPARE(form.after({MouseClick}), "");
    }

    void isLetGoWithoutAWordWhenAWindowBlocksItsOwn() {
        Form form;
        QCOMPARE(form.after({MousePress}), "(MouseDown)");
        QDialog box;
        box.setModal(true);
        box.show();
        QTRY_COMPARE(form.first.state().currentState, kStateUp);
        box.close();
        QCOMPARE(form.taken(), "");
        QCOMPARE(form.after({MouseRelease}), "MouseUp");  // of another press, as far as it knows
    }

    void leavesBackAndForwardAlone() {
        Form form;
        form.after({MouseClick});
        QCOMPARE(form.after({MousePress}), "(MouseDown)");
        for (const auto button : {Qt::BackButton, Qt::ForwardButton})
            QCOMPARE(form.after({MouseClick, MouseDClick}, button), "(), ()");
        QCOMPARE(form.after({MouseRelease}), "MouseUp Click");
        QCOMPARE(form.after({MousePress}, Qt::BackButton), "");
        QCOMPARE(form.after({MousePress, MouseRelease}, Qt::MiddleButton), "(MouseDown), MouseUp");
    }

    void hoversUntilThePointerLeaves() {
        Form form;
        form.moveTo(form.second, {5, 5});
        const QColor up = form.faceColour();
        form.design.setBackOver(0xFFFFFF);
        form.first.hide();
        form.first.show();                                // makes the palette anew
        QWidget cover{nullptr, Qt::FramelessWindowHint};  // a covered part counts as outside
        cover.setGeometry(QRect{form.first.mapToGlobal(QPoint{0, 0}), QSize{50, 40}});
        cover.show();
        cover.raise();
        (void)QTest::qWaitForWindowExposed(&cover);
        form.taken();
        form.moveTo(form.first, {20, 20});
        QCOMPARE(form.taken(), "");
        form.moveTo(form.first, {80, 20});
        QCOMPARE(form.taken(), "MouseIn MouseOver");
        QVERIFY(form.faceColour() != up);
        QTRY_VERIFY(form.hoverTicks >= 5);
        QCOMPARE(form.taken(), "");
        QCursor::setPos(form.second.mapToGlobal(QPoint{5, 5}));
        QTRY_COMPARE(form.events, QStringList{"MouseOut"});
        QCOMPARE(form.faceColour(), up);
        form.moveTo(form.first, {80, 20});
        QTRY_VERIFY(form.hoverTicks >= 50);
        form.taken();
        QLabel above{&form.window};  // so does one that another widget comes over
        above.setGeometry(form.first.geometry());
        above.show();
        QTRY_COMPARE(form.events, QStringList{"MouseOut"});
    }

    void takesSpaceAndAccessKeyButNotEnter() {
        using enum QTest::KeyAction;
        Form form;
        form.first.setFocus();
        QCOMPARE(form.after(Click, Qt::Key_Return), "KeyPress");
        QCOMPARE(form.after(Press, Qt::Key_Space), "(KeyPress)");
        QCOMPARE(form.after(Release, Qt::Key_Space), "Click");
        form.second.setFocus();
        QCOMPARE(form.after(Click, Qt::Key_F, Qt::AltModifier), "Click");
        form.design.setCaption("Fi&rst");
        QCOMPARE(form.after(Click, Qt::Key_F, Qt::AltModifier), "");
        QCOMPARE(form.after(Click, Qt::Key_R, Qt::AltModifier), "Click");
    }

    void showsItsFocusAndIsCutToItsStyle() {
        Form form;
        form.design.setForeOver(0x00FF00);
        form.design.setForeColor(0xFFFFFF);  // makes the palette anew
        for (GlintButton* focused : {&form.second, &form.first}) {
            focused->setFocus();
            for (GlintButton* hovered : {&form.second, &form.first}) {
                form.moveTo(*hovered, {50, 20});
                QTRY_COMPARE(form.first.state().IsOver, hovered == &form.first);
                const QImage image = form.first.grab().toImage();
                int dots = 0;  // every other one of the 90 along the top
                for (int x = 0; x < image.width(); ++x) dots += image.pixel(x, 6) == 0xFFFFFFFF;
                QCOMPARE(dots, focused == &form.first ? 45 : 0);
            }
        }
        const QRegion shape = form.first.mask();
        QVERIFY(shape.contains(QPoint{0, 0}));
        QVERIFY(!shape.contains(QPoint{99, 0}));
        form.design.setButtonType(2);
        QVERIFY(form.first.mask().isEmpty());
    }

    void showsEveryChangeAtOnce() {
        Form form;
        form.second.setFocus();
        QImage before = form.first.grab().toImage();
        const std::function<void()> changes[] = {
            [&form] { form.design.setCaption("Last"); },
            [&form] { form.design.setFont({.name = "Noto Sans", .size = 17}); },
            [&form] { form.design.setFont({.name = "Noto Sans", .size = 17, .underline = true}); },
            [&form] { form.design.setPictureNormal("shell 24"); },
            [&form] { form.first.setEnabled(false); },
            [&form] { form.first.resize(101, 41); }};
        for (const auto& change : changes) {
            change();
            const QImage after = form.first.grab().toImage();
            QVERIFY2(after != before, qPrintable(QString::number(&change - changes)));
            before = after;
        }
    }

    void looksAsItDidWhenItIsAsItWas() {
        Form form;
        QMap<std::string, QImage> looks;
        for (const char* caption : {"A", "B", "A", "C", "D", "E", "B", "F", "A", "E"}) {
            form.design.setCaption(caption);
            const QImage look = form.first.grab().toImage();
            QCOMPARE(looks.value(caption, look), look);
            looks[caption] = look;
        }
    }

    void showsGlassOverWhatLiesBehind() {
        Form form;
        form.window.setPalette(QPalette{Qt::red});
        form.design.setCaption("");
        form.design.setBackColor(0);
        form.design.setButtonType(11);
        // Black with an opacity of 96 / 255 over red.
        QCOMPARE_LE(std::abs(form.faceColour().red() - 159), 1);
        QCOMPARE(form.faceColour().green(), 0);
    }

    void greysAndBlendsItsPicture() {
        Form form;
        form.design.setCaption("");
        form.design.setPictureNormal("ok 16");  // #E8FDFF at 48, 23
        QCOMPARE(form.colour(48, 23), QColor{0xE8FDFF});
        form.design.setUseGreyscale(true);
        QCOMPARE(form.colour(48, 23), QColor(247, 247, 247));  // 70 + 149.27 + 28.05
        form.design.setUseGreyscale(false);
        form.design.setEnabled(false);
        // The dull face is #0A2B34; two thirds of the picture over it give 158, 183, 187, and the
        // dull face with an opacity of 120 / 255 over that 88, 117, 123.
        QCOMPARE_LE(std::abs(form.colour(48, 23).red() - 88), 1);
        QCOMPARE_LE(std::abs(form.colour(48, 23).green() - 117), 1);
    }

    void tellsScreenReaders() {
        GlintButtonAccessible::install();
        Form form;
        form.first.setToolTip(" Go ");
        form.design.setCaption("&Rock && Roll\nNow");
        form.design.setCheckBoxBehaviour(true);
        QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&form.first);
        QVERIFY(reader);
        QCOMPARE(reader->role(), QAccessible::Button);
        QCOMPARE(reader->text(QAccessible::Name), "Rock & Roll Now");
        QCOMPARE(reader->text(QAccessible::Description), "Go");
        QCOMPARE(reader->text(QAccessible::Accelerator), "Alt+R");
        QCOMPARE(reader->actionInterface()->keyBindingsForAction(
                     QAccessibleActionInterface::pressAction()),
                 QStringList{"Alt+R"});
        QVERIFY(reader->state().checkable);
        QVERIFY(!reader->state().checked);
        reader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(form.taken(), "");  // nobody has to wait for what a click does
        QCoreApplication::processEvents();
        QCOMPARE(form.taken(), "Click");
        QVERIFY(reader->state().checked);
        form.first.setEnabled(false);  // the widget's own, which leaves the property alone
        QVERIFY(reader->state().disabled);
        QVERIFY(form.first.state().Enabled);
        form.design.setEnabled(true);
        QVERIFY(!reader->state().disabled);
        form.design.setEnabled(false);
        QVERIFY(reader->state().disabled);
    }

    void keepsItsPropertiesInABag() {
        QtPropertyBagFile file{
            R"({"full": {"BTYPE": 3, "TX": "&Größe\n2", "ENAB": false, "FONT": {"name": "Sans",
            "size": 16, "bold": true, "italic": false, "underline": true}, "COLTYPE": 4,
            "FOCUSR": false, "BCOL": -2147483635, "BCOLO": 1, "FCOL": 255, "FCOLO": 2, "MCOL": 7,
            "MPTR": 5, "MICON": "hand", "PICN": "ok 16", "PICH": "bin 16", "UMCOL": false,
            "SOFT": true, "PICPOS": 4, "NGREY": true, "FX": 9, "CHECK": true, "VALUE": true}})",
            "form"};
        const QtShapes shapes{programDrawings()};
        GlintButton button{"cmdOne", shapes, nullptr};
        button.design().readProperties(file.bag("full"));
        auto copy = file.bag("copy");
        button.design().writeProperties(copy);
        const auto written = QJsonDocument::fromJson(file.toJson()).object();
        QCOMPARE(written.value("copy").toObject(), written.value("full").toObject());
        QCOMPARE(button.design().FontSize(), 16.0F);
        QCOMPARE(button.design().MouseIcon(), std::string{"hand"});
        QCOMPARE(QWidget::find(button.design().hwnd()), &button);
    }

    void reportsAWrongTypeOnce() {
        const test::CapturedErrors errors;
        QtPropertyBagFile file{R"({"b": {"BTYPE": 2.5, "TX": 7, "ENAB": 1, "FONT": "x"}})", "bad"};
        const QStringList wrong{"BTYPE", "TX", "ENAB", "FONT"}, missing{"A", "B", "C", "D"};
        for (const QStringList& keys : {wrong, wrong, missing}) {
            const auto key = [&](int number) { return keys[number].toStdString(); };
            const auto bag = file.bag("b");
            QCOMPARE(bag.readInteger(key(0), 14), 14);
            QCOMPARE(bag.readText(key(1), "none"), std::string{"none"});
            QCOMPARE(bag.readBoolean(key(2), true), true);
            QCOMPARE(bag.readFont(key(3), {.name = "Sans"}).name, std::string{"Sans"});
        }
        const QtPropertyBagFile none{"[", "none"};
        QCOMPARE(errors.text().count('\n'), 5);
    }
};

int GlintButtonTest_main(int argc, char** argv) {
    return skylob::test::runTest<GlintButtonTest>(argc, argv);
}
#include "GlintButtonTest.moc"
