#include "controls/qt/GlintButtonAccessible.h"

#include "controls/qt/GlintButton.h"

namespace skylob {

namespace {

QAccessibleInterface* makeAccessible(const QString&, QObject* object) {
    auto* button = qobject_cast<GlintButton*>(object);
    return button ? new GlintButtonAccessible{button} : nullptr;
}

}  // namespace

GlintButtonAccessible::GlintButtonAccessible(GlintButton* button)
    : QAccessibleWidget{button, QAccessible::Button} {
}

void GlintButtonAccessible::install() {
    QAccessible::removeFactory(makeAccessible);
    QAccessible::installFactory(makeAccessible);
}

GlintButton* GlintButtonAccessible::button() const {
    return static_cast<GlintButton*>(widget());
}

QString GlintButtonAccessible::text(QAccessible::Text kind) const {
    const QString toolTip = button()->toolTip().trimmed();
    const QString caption = button()->plainCaption();
    switch (kind) {
        case QAccessible::Name:
            return caption.isEmpty() ? toolTip : caption;
        case QAccessible::Description:
            return toolTip;
        default:
            return QAccessibleWidget::text(kind);
    }
}

QAccessible::State GlintButtonAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    const GlintState& glint = button()->state();
    state.disabled = !glint.Enabled || !button()->isEnabled();
    state.checkable = glint.CheckBoxBehaviour;
    state.checked = glint.CheckBoxBehaviour && glint.Value;
    state.pressed = glint.currentState == kStatePressed;
    return state;
}

QStringList GlintButtonAccessible::actionNames() const {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
}

void GlintButtonAccessible::doAction(const QString& name) {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    // Later, because whoever asks waits for an answer, and a click can begin a whole flight or
    // bring up a modal screen.
    QMetaObject::invokeMethod(
        button(),
        [pressed = button()] {
            if (pressed->isEnabled() && pressed->isVisible()) pressed->press();
        },
        Qt::QueuedConnection);
}

}  // namespace skylob
