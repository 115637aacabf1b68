#pragma once

#include <QAccessible>
#include <QFile>
#include <QTest>
#include <QWidget>

namespace skylob::test {

/// What a screen reader finds in an object, a line for each: role, "name", value, access key,
/// states and description. What is not there for it, and unnamed boxes around others, are left out.
inline QString spoken(QAccessibleInterface* of, int depth = 0) {
    QString text;
    const QAccessible::State is = of->state();
    if (is.invisible) return text;
    const QString name = of->text(QAccessible::Name);
    if (of->role() != QAccessible::Client || !name.isEmpty()) {
        text = QString{depth * 4, QLatin1Char{' '}} + qAccessibleRoleString(of->role()) + " \"" +
               name + '"';
        const auto add = [&text](const QString& before, const QString& what, const char* after) {
            if (!what.isEmpty()) text += before + what + after;
        };
        add(" = ", of->text(QAccessible::Value), "");
        add(" [", of->text(QAccessible::Accelerator), "]");
        if (is.disabled) text += " disabled";
        if (is.checked) text += " checked";
        if (is.selected) text += " selected";
        if (is.focused) text += " focused";
        add(" (", of->text(QAccessible::Description), ")");
        text += '\n';
        ++depth;
    }
    for (int i = 0; i < of->childCount(); ++i)
        if (QAccessibleInterface* const child = of->child(i)) text += spoken(child, depth);
    return text;
}

/// Compares with what stands in tests/accessible.
inline void compareSpoken(const QString& name, const QString& heard) {
    QFile file{QStringLiteral(SKYLOB_ACCESSIBLE "/") + name + ".txt"};
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
    const QString written = QString::fromUtf8(file.readAll());
    const QStringList lines = heard.split('\n'), expected = written.split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) QCOMPARE(lines[i], expected.value(i));
    QCOMPARE(lines.size(), expected.size());
}

}  // namespace skylob::test
