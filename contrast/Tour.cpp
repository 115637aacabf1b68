#include "Tour.h"

#include <QAbstractButton>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTest>

#include "controls/qt/GlintButton.h"

namespace skylob {

namespace {

constexpr int kMargin = 4;  // of the window around a widget: its mark may reach there

QString nameOf(const QWidget& widget) {
    if (!widget.objectName().isEmpty()) return widget.objectName();
    return QString::fromLatin1(widget.metaObject()->className());
}

bool isSeen(const QWidget& widget) {
    return widget.isVisible() && !widget.visibleRegion().isEmpty();
}

bool isControl(const QWidget& widget) {
    return qobject_cast<const GlintButton*>(&widget) ||
           qobject_cast<const QAbstractButton*>(&widget) ||
           (qobject_cast<const QScrollBar*>(&widget) && widget.focusPolicy() != Qt::NoFocus);
}

/// By a hint, or by the digits that are typed.
bool isCovered(const QWidget& widget, const QRect& place) {
    const QWidget& window = *widget.window();
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        const QString role = label->property("role").toString();
        const bool covers = role == QStringLiteral("hint") || role == QStringLiteral("digits");
        if (!covers || !label->isVisible() || label == &widget) continue;
        const QRect cover{label->mapTo(&window, QPoint{0, 0}), label->size()};
        if (cover.intersects(place.translated(widget.mapTo(&window, QPoint{0, 0})))) return true;
    }
    return false;
}

void putPointer(QWidget& on, const QPoint& at) {
    QCursor::setPos(on.mapToGlobal(at));
    QTest::mouseMove(&on, at);
    QCoreApplication::processEvents();
}

/// Where a press does nothing but press.
QPoint holdOf(const QWidget& control) {
    if (!qobject_cast<const QScrollBar*>(&control)) return control.rect().center();
    return partsOf(control).front().place.center();
}

}  // namespace

QImage seen(QWidget& widget) {
    QWidget& window = *widget.window();
    const QRect place{widget.mapTo(&window, QPoint{0, 0}), widget.size()};
    return window.grab(place.marginsAdded({kMargin, kMargin, kMargin, kMargin})).toImage();
}

void Tour::add(const QString& place, const QString& state, const Part& part,
               const QImage& picture) {
    m_table.add(place, state, part.name, part.kind, contrastOf(part, picture));
}

void Tour::measure(QWidget& widget, const QString& place, const QString& state, Limits limits) {
    const QList<Part> parts = partsOf(widget);
    if (parts.isEmpty()) return;
    const QImage picture = seen(widget);
    for (Part part : parts) {
        if (isCovered(widget, part.place)) continue;
        for (QRect* rect : {&part.place, &part.ground})
            if (!rect->isNull()) rect->translate(kMargin, kMargin);
        const QString what = nameOf(widget) + QLatin1String{": "} + part.name;
        const double contrast = contrastOf(part, picture);
        if (limits == Limits::None)
            m_table.tell(place, state, what, contrast);
        else
            m_table.add(place, state, what, part.kind, contrast);
    }
}

void Tour::look(QWidget& window, const QString& place, const QString& state, Limits limits) {
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (isSeen(*widget)) measure(*widget, place, state, limits);
    measure(window, place, state, limits);
    if (!m_folder.isEmpty())
        window.grab().save(QStringLiteral("%1/%2, %3.png").arg(m_folder, place, state));
}

void Tour::visit(QWidget& window, const QString& place) {
    look(window, place, QStringLiteral("as shown"));
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!isSeen(*widget) || !widget->isEnabled()) continue;
        if (widget->focusPolicy() != Qt::NoFocus)
            measureFocus(*widget, place, QStringLiteral("focused"));
        if (!isControl(*widget)) continue;
        measurePointer(*widget, place);
        measureDisabled(*widget, place);
        auto* const box = qobject_cast<QAbstractButton*>(widget);
        if (!box || qobject_cast<QRadioButton*>(box)) continue;
        const QSignalBlocker quiet{box};
        box->setChecked(!box->isChecked());
        measure(*box, place, QStringLiteral("the other way"));
        measureDisabled(*box, place);
        box->setChecked(!box->isChecked());
    }
}

void Tour::measureFocus(QWidget& control, const QString& place, const QString& state) {
    QWidget* const before = control.window()->focusWidget();
    if (before) before->clearFocus();
    const QImage without = seen(control);
    control.window()->setAttribute(Qt::WA_KeyboardFocusChange);  // some marks are for keyboards
    control.setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    m_table.add(place, state, nameOf(control) + QStringLiteral(": focus mark"), PartKind::Mark,
                contrastOfChange(without, seen(control)));
    measure(control, place, state);
    if (before) before->setFocus();
}

void Tour::measurePointer(QWidget& control, const QString& place) {
    const QPoint hold = holdOf(control), outside{-9, -9};
    putPointer(control, hold);
    measure(control, place, QStringLiteral("hovered"));
    if (qobject_cast<GlintButton*>(&control))
        measureFocus(control, place, QStringLiteral("hovered, focused"));
    QTest::mousePress(&control, Qt::LeftButton, {}, hold);
    measure(control, place, QStringLiteral("pressed"));
    QTest::mouseRelease(&control, Qt::LeftButton, {}, outside);
    putPointer(*control.window(), control.mapTo(control.window(), outside));
    if (auto* const button = qobject_cast<GlintButton*>(&control))
        (void)QTest::qWaitFor([button] { return !button->state().IsOver; });
}

void Tour::measureDisabled(QWidget& control, const QString& place) {
    control.setEnabled(false);
    measure(control, place, QStringLiteral("disabled"));
    control.setEnabled(true);
}

}  // namespace skylob
