#include "controls/qt/GlintPainter.h"

#include <QTemporaryDir>
#include <QTest>

#include "controls/qt/GlintButton.h"
#include "look/qt/QtShapes.h"
#include "tests/support/ScreenTest.h"

using namespace skylob;

constexpr double kRatios[] = {1, 1.25, 1.5, 1.75, 2};

/// A red window with one button of 100 x 40, dark with a white caption unless told.
struct PaintedForm {
    explicit PaintedForm(QPoint place = {20, 20}, ColourReference back = 0x202020) {
        window.setFixedSize(160, 90);
        window.setPalette(QPalette{Qt::red});
        button.setGeometry(QRect{place, QSize{100, 40}});
        button.design().initialiseProperties();
        button.design().setCaption({});
        button.design().setForeColor(0xFFFFFF);
        button.design().setBackColor(back);
        window.show();
    }

    /// The window on a display of that many device pixels for each logical one.
    QImage shown(double ratio) {
        QImage image{window.size() * ratio, QImage::Format_RGB32};
        image.setDevicePixelRatio(ratio);
        window.render(&image);
        return image;
    }

    /// The smallest rectangle around all that is nearly white.
    QRect white(double ratio) {
        const QImage image = shown(ratio);
        QRect found;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qGreen(image.pixel(x, y)) > 180) found |= QRect{x, y, 1, 1};
        return found;
    }

    const QtShapes shapes{programDrawings()};
    QWidget window;
    GlintButton button{"cmdOne", shapes, &window};
};

/// How many pixels of the button's face touch the red of the window with a side.
int leaks(const QImage& image) {
    const QRgb red = 0xFFFF0000, black = 0xFF000000;
    int count = 0;
    for (int y = 1; y + 1 < image.height(); ++y)
        for (int x = 1; x + 1 < image.width(); ++x) {
            if (image.pixel(x, y) == red || image.pixel(x, y) == black) continue;
            for (const QPoint& to : {QPoint{x - 1, y}, {x + 1, y}, {x, y - 1}, {x, y + 1}})
                count += image.pixel(to) == red;
        }
    return count;
}

class GlintPainterTest : public QObject {
    Q_OBJECT

  private slots:
    void drawsWholeOutlinesAtAnyScale() {
        for (const double ratio : kRatios)
            for (const QPoint& place : {QPoint{20, 20}, {21, 22}, {23, 19}}) {
                PaintedForm form{place, 0xC0A0A0};  // its outline is black
                form.button.design().setButtonType(3);
                QCOMPARE(leaks(form.shown(ratio)), 0);
            }
    }

    void movesWhatIsPressedByWholePixels() {
        const int steps[] = {1, 1, 2, 2, 2};  // a logical pixel, rounded
        for (int i = 0; i < 2 * 5; ++i) {
            const int step = steps[i % 5];
            PaintedForm form;
            form.button.design().setCaption(i < 5 ? "Hill" : "");
            form.button.design().setPictureNormal(i < 5 ? "" : "ok 16");
            const QRect up = form.white(kRatios[i % 5]);
            QVERIFY(!up.isEmpty());
            QTest::mousePress(&form.button, Qt::LeftButton);
            QCOMPARE(form.white(kRatios[i % 5]), up.translated(step, step));
        }
    }

    void coversTheFaceAsFarAsAPictureFileSays() {
        // 16 x 8 pixels for 8 x 4 logical ones: green; half green; nothing; the mask colour.
        QImage file{16, 8, QImage::Format_ARGB32};
        for (int x = 0; x < 16; ++x)
            for (int y = 0; y < 8; ++y)
                file.setPixel(x, y, QList<QRgb>{0xFF00FF00, 0x8000FF00, 0, 0xFFC0C0C0}.at(x / 4));
        QTemporaryDir folder;
        const QString path = folder.filePath("four@2x.png");
        QVERIFY(file.save(path));
        PaintedForm form;
        form.button.design().setPictureNormal(path.toStdString());
        const QRect place{20 + 46, 20 + 18, 8, 4};
        for (const double ratio : {1.0, 2.0}) {
            const QImage image = form.shown(ratio);
            const auto green = [&](int x, int y) {
                return qGreen(image.pixel((place.topLeft() + QPoint{x, y}) * ratio));
            };
            const int face = green(-1, 0);
            QCOMPARE_LT(face, 64);
            for (const int y : {0, 3}) {
                for (const int x : {0, 1}) QCOMPARE(green(x, y), 255);
                QCOMPARE_LE(std::abs(green(2, y) - (255 + face) / 2), 2);
                for (const int x : {4, 6, 8}) QCOMPARE_LE(std::abs(green(x, y) - face), 4);
            }
            QCOMPARE_LE(std::abs(green(0, 4) - face), 4);
        }
        QVERIFY(QFile::remove(path));  // a file is read once
        QCOMPARE(form.shown(1).pixelColor(place.topLeft()), QColor(0, 255, 0));
        form.button.design().setUseMaskColor(false);  // then nothing is transparent
        QCOMPARE(form.shown(1).pixelColor(place.topLeft() + QPoint{5, 1}), QColor(0xC0C0C0));
    }
};

int GlintPainterTest_main(int argc, char** argv) {
    return skylob::test::runTest<GlintPainterTest>(argc, argv);
}
#include "GlintPainterTest.moc"
