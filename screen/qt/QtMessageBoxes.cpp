#include "screen/qt/QtMessageBoxes.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>

#include "screen/qt/QtPlacement.h"

namespace skylob {

namespace {

QMessageBox::Icon qtIcon(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Question:
            return QMessageBox::Question;
        case BoxIcon::Critical:
            return QMessageBox::Critical;
        case BoxIcon::Information:
            break;
    }
    return QMessageBox::Information;
}

/// In a window's title "[*]" would stand for an unsaved document.
QString plainTitle(const std::string& title) {
    return QString::fromStdString(title).replace(QLatin1String{"[*]"}, QLatin1String{"[*][*]"});
}

/// The program's window in use, or any of its windows while another program is in use. A window
/// behind a modal one is in nobody's use, although some desktops make it the active one.
const QWidget* windowInUse() {
    if (const QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (const QWidget* active = QApplication::activeWindow()) return active;
    for (const QWidget* widget : QApplication::topLevelWidgets())
        if (widget->isVisible()) return widget;
    return nullptr;
}

QString plainLines(const std::string& text) {
    return QString::fromStdString(text).remove(QLatin1Char{'\r'});
}

/// Makes the box so wide that its whole title can be read. The window manager draws the title, in a
/// font that it keeps to itself, between its buttons: room for eight is enough for most of them.
void fitTitle(QDialog& box) {
    QFont font = box.font();
    font.setBold(true);
    const QFontMetrics metrics{font};
    const int width = metrics.horizontalAdvance(box.windowTitle()) + 8 * metrics.height();
    // Boxes take their widths from what is in them, so a text that is narrower gets more room.
    for (QLabel* label : box.findChildren<QLabel*>())
        if (label->pixmap().isNull() && label->sizeHint().width() < width)
            label->setMinimumWidth(width);
}

}  // namespace

BoxAnswer QtMessageBoxes::show(const MessageBox& box) {
    const bool question = box.buttons == BoxButtons::YesNo;
    // Player names are data: nothing in the text is markup.
    QMessageBox widget{qtIcon(box.icon),
                       plainTitle(box.title),
                       {},
                       question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok};
    widget.setTextFormat(Qt::PlainText);
    widget.setText(plainLines(box.text));
    if (question)
        widget.setDefaultButton(box.preset == BoxAnswer::No ? QMessageBox::No : QMessageBox::Yes);
    fitTitle(widget);
    keepAbove(widget, windowInUse());
    const int answer = widget.exec();
    if (!question) return BoxAnswer::Ok;
    return answer == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

std::optional<std::string> QtMessageBoxes::ask(const InputBox& box) {
    QInputDialog widget;
    widget.setWindowTitle(plainTitle(box.title));
    // The prompt is the entry's label, in which an ampersand would make an access key.
    widget.setLabelText(plainLines(box.prompt).replace(QLatin1Char{'&'}, QLatin1String{"&&"}));
    for (auto* label : widget.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
    widget.setTextValue(QString::fromStdString(box.entry));
    fitTitle(widget);
    keepAbove(widget, windowInUse());
    if (widget.exec() != QDialog::Accepted) return std::nullopt;
    return widget.textValue().normalized(QString::NormalizationForm_C).toStdString();
}

}  // namespace skylob
