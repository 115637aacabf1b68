#include "screen/qt/QtMessageBoxes.h"

#include <QApplication>
#include <QLineEdit>

#include "screen/qt/QtBox.h"
#include "screen/qt/QtPlacement.h"

namespace skylob {

namespace {

QString drawingOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Question:
            return QStringLiteral("question");
        case BoxIcon::Critical:
            return QStringLiteral("critical");
        case BoxIcon::Information:
            break;
    }
    return QStringLiteral("information");
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

}  // namespace

BoxAnswer QtMessageBoxes::show(const MessageBox& box) {
    QtBox widget{QString::fromStdString(box.title), plainLines(box.text), m_shapes};
    widget.setIcon(drawingOf(box.icon));
    const bool question = box.buttons == BoxButtons::YesNo;
    if (question)
        widget.addButtons({QtBox::Answer::Yes, QtBox::Answer::No},
                          box.preset == BoxAnswer::No ? QtBox::Answer::No : QtBox::Answer::Yes);
    else
        widget.addButtons({QtBox::Answer::Ok}, QtBox::Answer::Ok);
    keepAbove(widget, windowInUse());
    const bool accepted = widget.exec() == QDialog::Accepted;
    if (!question) return BoxAnswer::Ok;
    return accepted ? BoxAnswer::Yes : BoxAnswer::No;
}

std::optional<std::string> QtMessageBoxes::ask(const InputBox& box) {
    QtBox widget{QString::fromStdString(box.title), plainLines(box.prompt), m_shapes};
    const QLineEdit* const entry = widget.addEntry(QString::fromStdString(box.entry));
    widget.addButtons({QtBox::Answer::Ok, QtBox::Answer::Cancel}, QtBox::Answer::Ok);
    keepAbove(widget, windowInUse());
    if (widget.exec() != QDialog::Accepted) return std::nullopt;
    return entry->text().normalized(QString::NormalizationForm_C).toStdString();
}

}  // namespace skylob
