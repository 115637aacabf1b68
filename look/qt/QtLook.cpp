#include "look/qt/QtLook.h"

#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QPalette>
#include <QStyle>
#include <QTextDocument>
#include <QVariant>
#include <QWidget>

namespace skylob {

namespace {

constexpr int kTextMargin = 4;

QPalette nightPalette() {
    QPalette palette;
    const QColor text{0xE8EDF8}, dim{0x76839F};
    palette.setColor(QPalette::Window, 0x0D1220);
    palette.setColor(QPalette::Base, 0x161E31);
    palette.setColor(QPalette::AlternateBase, 0x1A2338);
    palette.setColor(QPalette::Button, 0x222D47);
    palette.setColor(QPalette::Highlight, 0x24507A);
    palette.setColor(QPalette::HighlightedText, 0xFFFFFF);
    palette.setColor(QPalette::ToolTipBase, 0xF3E9C6);
    palette.setColor(QPalette::ToolTipText, 0x1B1A12);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, dim);
    }
    return palette;
}

QString styleSheet() {
    QFile file{QStringLiteral(":/look/skylob.qss")};
    if (!file.open(QIODevice::ReadOnly)) qFatal("the style sheet is missing");
    return QString::fromUtf8(file.readAll());
}

QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 32, 64, 256})
        icon.addFile(QStringLiteral(":/pictures/icon-%1.png").arg(size));
    return icon;
}

}  // namespace

void applyLook(QWidget& screen) {
    QFont font = screen.font();
    font.setFamilies(
        {QStringLiteral("Noto Sans"), QStringLiteral("Open Sans"), QStringLiteral("DejaVu Sans")});
    font.setPixelSize(13);
    screen.setFont(font);
    screen.setPalette(nightPalette());
    screen.setProperty("screen", true);
    screen.setAttribute(Qt::WA_StyledBackground);
    screen.setStyleSheet(styleSheet());
    screen.setWindowIcon(programIcon());
}

void showFitting(QLabel& label, const QString& text, std::initializer_list<int> sizes) {
    const int room = label.width() - 2 * kTextMargin;
    QFont font = label.font();
    for (const int size : sizes) {
        label.setStyleSheet(QStringLiteral("font-size: %1px").arg(size));
        label.ensurePolished();
        font = label.font();
        if (QFontMetrics{font}.horizontalAdvance(text) <= room) break;
    }
    const QString shown = QFontMetrics{font}.elidedText(text, Qt::ElideRight, room);
    label.setText(shown);
    // Made into markup, because a name that looks like markup would be taken for it.
    label.setToolTip(shown == text ? QString{} : Qt::convertFromPlainText(text));
}

void setStyleProperty(QWidget& widget, const char* name, int value) {
    if (widget.property(name) == QVariant{value}) return;
    widget.setProperty(name, value);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

}  // namespace skylob
