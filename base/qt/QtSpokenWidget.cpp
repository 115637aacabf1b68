#include "base/qt/QtSpokenWidget.h"

#include <QKeySequence>
#include <QTextDocumentFragment>
#include <QVariant>
#include <QWidget>

namespace skylob {

namespace {

constexpr const char* kRole = "spokenRole";
constexpr const char* kKey = "spokenKey";
constexpr const char* kKept = "keptFromReaders";

/// What is left of a text that is listened to with half an ear.
QString lettersOf(const QString& text) {
    QString letters;
    for (const QChar sign : text)
        if (sign.isLetterOrNumber()) letters += sign.toLower();
    return letters;
}

}  // namespace

void setSpokenRole(QWidget& widget, QAccessible::Role role) {
    widget.setProperty(kRole, static_cast<int>(role));
}

void setSpokenName(QWidget& widget, const QString& name) {
    if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

void setSpokenDescription(QWidget& widget, const QString& description) {
    if (widget.accessibleDescription() != description) widget.setAccessibleDescription(description);
}

void setSpokenKey(QWidget& widget, const QKeySequence& key) {
    widget.setProperty(kKey, key);
}

void keepFromReaders(QWidget& widget) {
    widget.setProperty(kKept, true);
}

bool isKeptFromReaders(const QObject* widget) {
    return widget && widget->property(kKept).toBool();
}

QString spokenLine(const QString& text) {
    const bool isMarkup = Qt::mightBeRichText(text);
    return (isMarkup ? QTextDocumentFragment::fromHtml(text).toPlainText() : text).simplified();
}

QtSpokenWidget::QtSpokenWidget(QWidget* widget, QAccessible::Role role)
    : QAccessibleWidget{widget, role} {
}

QAccessible::Role QtSpokenWidget::role() const {
    const QVariant set = widget()->property(kRole);
    return set.isValid() ? static_cast<QAccessible::Role>(set.toInt()) : QAccessibleWidget::role();
}

QString QtSpokenWidget::text(QAccessible::Text kind) const {
    switch (kind) {
        case QAccessible::Name:
            return name().simplified();
        case QAccessible::Description:
            return description();
        case QAccessible::Accelerator:
            return key().toString(QKeySequence::NativeText);
        default:
            return QAccessibleWidget::text(kind);
    }
}

QString QtSpokenWidget::name() const {
    const QString given = widget()->accessibleName();
    return given.isEmpty() && widget()->isWindow() ? widget()->windowTitle() : given;
}

QString QtSpokenWidget::description() const {
    const QString given = widget()->accessibleDescription();
    const QString line = spokenLine(given.isEmpty() ? widget()->toolTip() : given);
    return lettersOf(line) == lettersOf(name()) ? QString{} : line;
}

QKeySequence QtSpokenWidget::key() const {
    return widget()->property(kKey).value<QKeySequence>();
}

bool QtSpokenWidget::isValid() const {
    return QAccessibleWidget::isValid() && !isKeptFromReaders(widget());
}

QStringList QtSpokenWidget::keyBindingsForAction(const QString& action) const {
    if (key().isEmpty() || action != actionNames().value(0)) return {};
    return {text(QAccessible::Accelerator)};
}

QList<QAccessibleInterface*> QtSpokenWidget::children() const {
    QList<QAccessibleInterface*> heard;
    for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
        QAccessibleInterface* const each = QAccessibleWidget::child(i);
        if (each && !isKeptFromReaders(each->object())) heard.append(each);
    }
    return heard;
}

int QtSpokenWidget::childCount() const {
    return static_cast<int>(children().size());
}

QAccessibleInterface* QtSpokenWidget::child(int index) const {
    return children().value(index);
}

int QtSpokenWidget::indexOfChild(const QAccessibleInterface* child) const {
    const QList<QAccessibleInterface*> heard = children();
    for (qsizetype i = 0; i < heard.size(); ++i)
        if (child && heard[i]->object() == child->object()) return static_cast<int>(i);
    return -1;
}

}  // namespace skylob
