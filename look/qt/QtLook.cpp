#include "look/qt/QtLook.h"

#include <QFile>
#include <QLabel>
#include <QPalette>
#include <QStyle>
#include <QTextDocument>
#include <QVariant>
#include <QWidget>

#include "look/qt/QtColour.h"

namespace skylob {

namespace {

constexpr int kTextMargin = 4;

QPalette nightPalette() {
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, Colour colour) {
        palette.setColor(role, toQColor(colour));
    };
    set(QPalette::Window, themeColour("night"));
    set(QPalette::Base, themeColour("panel"));
    set(QPalette::AlternateBase, themeColour("alternate"));
    set(QPalette::Button, themeColour("raised"));
    set(QPalette::Highlight, themeColour("selection"));
    set(QPalette::HighlightedText, themeColour("bright"));
    set(QPalette::ToolTipBase, themeColour("tip"));
    set(QPalette::ToolTipText, themeColour("tip-text"));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        set(role, themeColour("text"));
        palette.setColor(QPalette::Disabled, role, toQColor(themeColour("dim")));
    }
    return palette;
}

QString styleSheet() {
    QFile file{QStringLiteral(":/look/skylob.qss")};
    if (!file.open(QIODevice::ReadOnly)) qFatal("the style sheet is missing");
    return QString::fromStdString(withTheme(file.readAll().toStdString()));
}

}  // namespace

QStringList fontFamilies() {
    QStringList families;
    for (const char* family : kFontFamilies) families.append(QLatin1String{family});
    return families;
}

QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 32, 64, 256})
        icon.addFile(QStringLiteral(":/pictures/icon-%1.png").arg(size));
    return icon;
}

void applyLook(QWidget& screen) {
    QFont font = screen.font();
    font.setFamilies(fontFamilies());
    font.setPixelSize(kTextSize);
    screen.setFont(font);
    screen.setPalette(nightPalette());
    screen.setProperty("screen", true);
    screen.setAttribute(Qt::WA_StyledBackground);
    screen.setStyleSheet(styleSheet());
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
