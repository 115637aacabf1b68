#include "controls/qt/GlintButton.h"

#include <QAccessible>
#include <QDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include "controls/qt/GlintButtonAccessible.h"
#include "controls/qt/QtPropertyBagFile.h"
#include "look/qt/QtShapes.h"
#include "tests/support/CapturedErrors.h"

using namespace skylob;

namespace {

/// A window with two buttons, the first of which writes its events down.
struct Form {
    Form() {
        window.setFixedSize(300, 200);
        window.move(100, 100);
        for (GlintButton* button : {&first, &second}) {
            button->design().initialiseProperties();
            button->design().setBackColor(0x735F16);
            button->design().setForeColor(0xFFFFFF);
            button->setGeometry(20, button == &first ? 20 : 100, 100, 40);
        }
        first.design().setCaption("&First");
        second.design().setCaption("Second");
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
    QString taken() { return std::exchange(events, {}).join(' '); }
    QString pressed(Qt::MouseButton button) {
        QTest::mousePress(&first, button);
        return taken();
    }
    QString released(Qt::MouseButton button, QPoint place = {}) {
        QTest::mouseRelease(&first, button, {}, place);
        return taken();
    }
    QString clicked(Qt::MouseButton button) {
        QTest::mouseClick(&first, button);
        return taken();
    }
    int drawn() const { return first.state().currentState; }
    QRgb faceColour() { return first.grab().toImage().pixel(50, 35); }

    const QtShapes shapes{programDrawings()};
    QStringList events;
    QWidget window;
    GlintButton first{"cmdFirst", shapes, &window}, second{"cmdSecond", shapes, &window};
};

}  // namespace

class GlintButtonTest : public QObject {
    Q_OBJECT

  private slots:
    void clicksOnceForEachPressAndRelease() {
        Form form;
        QCOMPARE(form.clicked(Qt::LeftButton), QString{"MouseDown MouseUp Click"});
        QCOMPARE(form.released(Qt::LeftButton), QString{"MouseUp"});  // the press is used up
        QCOMPARE(form.clicked(Qt::RightButton), QString{"MouseDown MouseUp"});
        // The second press of a double click arrives as such, and its release ends in a click.
        QCOMPARE(form.clicked(Qt::LeftButton), QString{"MouseDown MouseUp Click"});
        QTest::mouseDClick(&form.first, Qt::LeftButton);
        QCOMPARE(form.released(Qt::LeftButton), QString{"MouseDown MouseUp Click"});
        QCOMPARE(form.pressed(Qt::LeftButton), QString{"MouseDown"});
        form.moveTo(form.second, {50, 20}, Qt::LeftButton);
        QCOMPARE(form.drawn(), kStateUp);
        QCOMPARE(form.released(Qt::LeftButton, {50, 100}), QString{"MouseUp"});  // dragged off
        form.first.design().setEnabled(false);
        QCOMPARE(form.clicked(Qt::LeftButton), QString{});
        form.first.press();
        QCOMPARE(form.taken(), QString{});
    }

    void isLetGoWithoutAWordWhenAWindowBlocksItsOwn() {
        Form form;
        QCOMPARE(form.pressed(Qt::LeftButton), QString{"MouseDown"});
        QCOMPARE(form.drawn(), kStatePressed);
        QDialog box;
        box.setModal(true);
        box.show();
        QTRY_COMPARE(form.drawn(), kStateUp);
        box.close();
        QCOMPARE(form.taken(), QString{});
        // Of another press, as far as it knows.
        QCOMPARE(form.released(Qt::LeftButton), QString{"MouseUp"});
    }

    void leavesBackAndForwardAlone() {
        Form form;
        form.clicked(Qt::LeftButton);
        QCOMPARE(form.pressed(Qt::LeftButton), QString{"MouseDown"});
        for (const auto button : {Qt::BackButton, Qt::ForwardButton}) {
            QTest::mouseClick(&form.first, button);
            QTest::mouseDClick(&form.first, button);
        }
        QCOMPARE(form.drawn(), kStatePressed);
        QCOMPARE(form.released(Qt::LeftButton), QString{"MouseUp Click"});
        QCOMPARE(form.pressed(Qt::BackButton), QString{});
        QCOMPARE(form.drawn(), kStateUp);
        QCOMPARE(form.pressed(Qt::MiddleButton), QString{"MouseDown"});
        QCOMPARE(form.drawn(), kStatePressed);
        QCOMPARE(form.released(Qt::MiddleButton), QString{"MouseUp"});
    }

    void hoversUntilThePointerLeaves() {
        Form form;
        form.moveTo(form.second, {5, 5});
        const QRgb up = form.faceColour();
        form.first.design().setBackOver(0xFFFFFF);
        form.first.hide();
        form.first.show();  // makes the palette anew
        QWidget cover;      // a covered part counts as outside
        cover.setWindowFlag(Qt::FramelessWindowHint);
        cover.setGeometry(QRect{form.first.mapToGlobal(QPoint{0, 0}), QSize{50, 40}});
        cover.show();
        cover.raise();
        (void)QTest::qWaitForWindowExposed(&cover);
        form.taken();
        form.moveTo(form.first, {20, 20});
        QCOMPARE(form.taken(), QString{});
        form.moveTo(form.first, {80, 20});
        QCOMPARE(form.taken(), QString{"MouseIn MouseOver"});
        QVERIFY(form.faceColour() != up);
        QTest::qWait(30);
        QCOMPARE(form.taken(), QString{});
        QCursor::setPos(form.second.mapToGlobal(QPoint{5, 5}));
        QTRY_VERIFY(form.events.contains("MouseOut"));
        QCOMPARE(form.faceColour(), up);
    }

    void takesSpaceAndAccessKeyButNotEnter() {
        Form form;
        form.first.setFocus();
        QTest::keyClick(&form.first, Qt::Key_Return);
        QCOMPARE(form.taken(), QString{"KeyPress"});
        QTest::keyPress(&form.first, Qt::Key_Space);
        QCOMPARE(form.drawn(), kStatePressed);
        QTest::keyRelease(&form.first, Qt::Key_Space);
        QCOMPARE(form.taken(), QString{"KeyPress Click"});
        form.second.setFocus();
        QTest::keyClick(&form.window, Qt::Key_F, Qt::AltModifier);
        QCOMPARE(form.taken(), QString{"Click"});
        form.first.design().setCaption("Fi&rst");
        QTest::keyClick(&form.window, Qt::Key_F, Qt::AltModifier);
        QTest::keyClick(&form.window, Qt::Key_R, Qt::AltModifier);
        QCOMPARE(form.taken(), QString{"Click"});
    }

    void showsItsFocusAndIsCutToItsStyle() {
        Form form;
        form.second.setFocus();
        const auto dots = [&] {
            const QImage image = form.first.grab().toImage();
            int white = 0;
            for (int x = 0; x < image.width(); ++x) white += image.pixel(x, 6) == 0xFFFFFFFF;
            return white;
        };
        QCOMPARE(dots(), 0);
        form.first.setFocus();
        QCOMPARE(dots(), 45);  // every other one of the 90 along the top
        const QRegion shape = form.first.mask();
        QVERIFY(shape.contains(QPoint{0, 0}));
        QVERIFY(!shape.contains(QPoint{99, 0}));
        form.first.design().setButtonType(2);
        QVERIFY(form.first.mask().isEmpty());
    }

    void showsGlassOverWhatLiesBehind() {
        Form form;
        form.window.setPalette(QPalette{Qt::red});
        form.first.design().setCaption("");
        form.first.design().setBackColor(0);
        form.first.design().setButtonType(11);
        // Black with an opacity of 96 / 255 over red.
        QVERIFY(std::abs(qRed(form.faceColour()) - 159) <= 1);
        QCOMPARE(qGreen(form.faceColour()), 0);
    }

    void greysAndBlendsItsPicture() {
        Form form;
        form.first.design().setCaption("");
        form.first.design().setPictureNormal("ok 16");  // #E8FDFF at 48, 23
        const auto middle = [&] { return QColor{form.first.grab().toImage().pixel(48, 23)}; };
        QCOMPARE(middle(), QColor{0xE8FDFF});
        form.first.design().setUseGreyscale(true);
        QCOMPARE(middle(), QColor(247, 247, 247));  // 70 + 149.27 + 28.05
        form.first.design().setUseGreyscale(false);
        form.first.design().setEnabled(false);
        // The dull face is #0A2B34; two thirds of the picture over it give 158, 183, 187, and the
        // dull face with an opacity of 120 / 255 over that 88, 117, 123.
        const QColor blended = middle();
        QVERIFY(std::abs(blended.red() - 88) <= 1);
        QVERIFY(std::abs(blended.green() - 117) <= 1);
    }

    void tellsScreenReaders() {
        GlintButtonAccessible::install();
        Form form;
        form.first.setToolTip(" Go ");
        form.first.design().setCaption("&Rock && Roll\nNow");
        form.first.design().setCheckBoxBehaviour(true);
        QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&form.first);
        QVERIFY(reader);
        QCOMPARE(reader->role(), QAccessible::Button);
        QCOMPARE(reader->text(QAccessible::Name), QString{"Rock & Roll Now"});
        QCOMPARE(reader->text(QAccessible::Description), QString{"Go"});
        QVERIFY(reader->state().checkable);
        QVERIFY(!reader->state().checked);
        reader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(form.taken(), QString{"Click"});
        QVERIFY(reader->state().checked);
        form.first.setEnabled(false);  // the widget's own, which leaves the property alone
        QVERIFY(reader->state().disabled);
        QVERIFY(form.first.state().Enabled);
        form.first.design().setEnabled(true);
        QVERIFY(!reader->state().disabled);
        form.first.design().setEnabled(false);
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

QTEST_MAIN(GlintButtonTest)
#include "GlintButtonTest.moc"
