// Draws every style of button in every state into a picture, to be looked at:
//   QT_QPA_PLATFORM=offscreen button_sheet sheet.png [RATIO]
// RATIO is the number of device pixels per logical pixel, 1 unless told.

#include <QApplication>
#include <QPainter>

#include "controls/qt/GlintButton.h"
#include "controls/qt/GlintButtonPictures.h"
#include "controls/qt/GlintPainter.h"
#include "look/qt/QtColour.h"
#include "look/qt/QtShapes.h"

namespace {

using namespace skylob;

struct Row {
    int style;
    ColourReference face, faceOver, text;
    const char *caption, *picture;
    int place = kPictureLeft;
};

struct Column {
    int state = kStateUp;
    bool over = false, enabled = true, focus = false, on = false;
};

constexpr Column kColumns[] = {{},
                               {.over = true},
                               {.state = kStatePressed},
                               {.focus = true},
                               {.enabled = false},
                               {.on = true},
                               {.over = true, .on = true}};

constexpr Row kRows[] = {
    {kStyleCommon, 0x5F4133, 0x7A5240, 0xFBF2EE, "Sa&mple", "list 16"},
    {kStyleRounded, 0x5F4133, 0x7A5240, 0xFBF2EE, "Sa&mple", "edit 16"},
    {kStyleGlass, 0x8C6F2F, 0xB08C3C, 0xFFFBF2, "Sa&mple", "go 16", kPictureRight},
    {kStyleDropped, 0x735F16, 0x86701B, 0xFFFFFF, "Sa&mple", "ok 16"},
    {kStyleDropped, 0x2EB9F2, 0x57CFFF, 0x00141C, "&Shoot", "shell 24"},
    {kStyleRounded, 0x5C3A2B, 0x7C4E3A, 0xFBF2EE, "&Target\nPractice", "fair 40"},
    {kStyleRounded, 0x5C3A2B, 0x7C4E3A, 0xFBF2EE, "&Target\nPractice", "fair 40", kPictureRight},
    {kStyleRounded, 0x5C3A2B, 0x7C4E3A, 0xFBF2EE, "&Target", "fair 40", kPictureAbove},
    {kStyleRounded, 0x5C3A2B, 0x7C4E3A, 0xFBF2EE, "&Target", "fair 40", kPictureBelow},
    {kStyleRounded, 0x5C3A2B, 0x7C4E3A, 0xFBF2EE, "&Target", "fair 40", kPictureBehind},
};

constexpr int kGap = 12, kWidth = 132;

int heightOf(const Row& row) {
    return QByteArray{row.picture}.endsWith("40") ? 84 : 48;
}

/// Something for style 11 to show through.
QImage backdrop(QSize pixels) {
    QImage image{pixels, QImage::Format_RGB32};
    QPainter painter{&image};
    painter.fillRect(image.rect(), QColor{0x1B2C55});
    painter.fillRect(0, pixels.height() / 2, pixels.width(), pixels.height(),
                     toQColor(themeColour("earth")));
    return image;
}

QImage drawn(const Row& row, const Column& column, const QtShapes& shapes, double ratio) {
    GlintButton button{"sample", shapes, nullptr};
    GlintDesign& design = button.design();
    design.initialiseProperties();
    design.setFont({.name = "Noto Sans",
                    .size = row.picture == QByteArray{"shell 24"} ? 16.f : 13.f,
                    .bold = true});
    design.setButtonType(row.style);
    design.setBackColor(row.face);
    design.setBackOver(row.faceOver);
    design.setForeColor(row.text);
    design.setForeOver(row.text);
    design.setCaption(row.caption);
    design.setPicturePosition(row.place);
    design.setPictureNormal(row.picture);
    design.setCheckBoxBehaviour(column.on);
    design.setValue(column.on);
    design.setColorScheme(kSchemeOwn);
    button.setFixedSize(kWidth, heightOf(row));
    button.grab();  // a first drawing lays everything out
    GlintState state = button.state();
    state.HasFocus = column.focus;
    QFont font{"Noto Sans"};
    font.setPixelSize(row.picture == QByteArray{"shell 24"} ? 16 : 13);
    font.setWeight(QFont::DemiBold);
    return paintGlintButton({.button = state,
                             .state = column.state,
                             .over = column.over,
                             .enabled = column.enabled,
                             .font = font,
                             .picture = GlintPictures{shapes}.at(row.picture, ratio),
                             .backdrop = backdrop(button.size() * ratio),
                             .ratio = ratio});
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application{argc, argv};
    if (argc < 2) {
        qCritical("usage: button_sheet FILE.png [RATIO]");
        return 2;
    }
    const double ratio = argc > 2 ? QString{argv[2]}.toDouble() : 1;
    const QtShapes shapes{programDrawings()};
    int height = kGap;
    for (const Row& row : kRows) height += heightOf(row) + kGap;
    const int width = kGap + static_cast<int>(std::size(kColumns)) * (kWidth + kGap);
    QImage sheet{QSize{width, height} * ratio, QImage::Format_RGB32};
    sheet.fill(toQColor(themeColour("night")));
    QPainter painter{&sheet};
    int y = kGap;
    for (const Row& row : kRows) {
        int x = kGap;
        for (const Column& column : kColumns) {
            painter.drawImage(QPointF{x * ratio, y * ratio}, drawn(row, column, shapes, ratio));
            x += kWidth + kGap;
        }
        y += heightOf(row) + kGap;
    }
    return sheet.save(argv[1]) ? 0 : 1;
}
