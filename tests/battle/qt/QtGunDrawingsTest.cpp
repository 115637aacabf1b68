#include "battle/qt/QtGunDrawings.h"

#include <QtTest>
#include <cmath>

#include "look/qt/QtShapes.h"
#include "tests/support/ScreenTest.h"

namespace skylob::test {

class QtGunDrawingsTest : public QObject {
    Q_OBJECT

  private slots:
    void barrelsEndAtTheMuzzle();
    void anotherPoseIsAnotherImage();
    void sidesAreToldApartByShape();

  private:
    const QtShapes m_shapes{programDrawings()};
};

/// Whether the gun covers what lies `beyond` the muzzle, a negative distance being before it.
static bool covers(const GunDrawing& drawing, const GunPose& pose, FieldPicture::PixelSize size,
                   double beyond) {
    const LightPoint muzzle = muzzleOf(pose, {0, 0, size.width, size.height});
    const double x = muzzle.x + std::sin(pose.turn) * beyond - drawing.x;
    const double y = muzzle.y - std::cos(pose.turn) * beyond - drawing.y;
    const auto at = static_cast<std::size_t>(y) * static_cast<std::size_t>(drawing.image.width) +
                    static_cast<std::size_t>(x);
    return drawing.image.pixels.at(at) >> 24 > 128;
}

void QtGunDrawingsTest::barrelsEndAtTheMuzzle() {
    QtGunDrawings guns{m_shapes};
    for (const FieldPicture::PixelSize size : {FieldPicture::PixelSize{18, 18}, {60, 53}}) {
        for (const int side : kSides) {
            for (const double turn : {0.0, 0.5, 1.0, 1.5}) {
                for (const int recoil : {0, 30}) {
                    const GunPose pose{
                        .side = side, .turn = side == kRightSide ? -turn : turn, .recoil = recoil};
                    const auto drawing = guns.draw(pose, size);
                    const double unit = gunScale(size.width, size.height).barrel;
                    QVERIFY(covers(*drawing, pose, size, -1.5 * unit));
                    QVERIFY(!covers(*drawing, pose, size, 2 * unit));
                }
            }
        }
    }
}

void QtGunDrawingsTest::anotherPoseIsAnotherImage() {
    QtGunDrawings guns{m_shapes};
    const GunPose pose{.side = 1, .turn = 0.5};
    const auto image = [&](const GunPose& of) { return guns.draw(of, {24, 24})->image.pixels; };
    GunPose onTurn = pose, wrecked = pose, other = pose;
    onTurn.onTurn = wrecked.wrecked = true;
    other.side = 2;
    QVERIFY(image(onTurn) != image(pose));
    QVERIFY(image(wrecked) != image(pose));
    QVERIFY(image(other) != image(pose));
    for (int i = 0; i < 200; ++i) (void)image({.side = 2, .turn = i / 100.0});
    QVERIFY(image(pose) == QtGunDrawings{m_shapes}.draw(pose, {24, 24})->image.pixels);
}

/// In black and white, and if both faced the same way.
void QtGunDrawingsTest::sidesAreToldApartByShape() {
    QtGunDrawings guns{m_shapes};
    const auto one = guns.draw({.side = 1, .turn = 1}, {24, 24});
    const auto two = guns.draw({.side = 2, .turn = -1}, {24, 24});
    const int width = one->image.width, height = one->image.height;
    int differing = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const auto line = static_cast<std::size_t>(y * width);
            const QRgb left = one->image.pixels.at(line + static_cast<std::size_t>(x));
            const QRgb right = two->image.pixels.at(line + static_cast<std::size_t>(width - 1 - x));
            differing += std::abs(qGray(left) - qGray(right)) > 60;
        }
    QVERIFY2(differing >= 25, qPrintable(QString::number(differing)));
}

}  // namespace skylob::test

int QtGunDrawingsTest_main(int argc, char** argv) {
    return skylob::test::runTest<skylob::test::QtGunDrawingsTest>(argc, argv);
}
#include "QtGunDrawingsTest.moc"
