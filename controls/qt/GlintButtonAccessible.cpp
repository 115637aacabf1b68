#include "controls/qt/GlintButtonAccessible.h"

#include <QKeySequence>

#include "controls/qt/GlintButton.h"

namespace skylob {

namespace {

QAccessibleInterface* makeAccessible(const QString&, QObject* object) {
    auto* button = qobject_cast<GlintButton*>(object);
    return button ? new GlintButtonAccessible{button} : nullptr;
}

}  // namespace

GlintButtonAccessible::GlintButtonAccessible(GlintButton* button)
    : QtSpokenWidget{button, QAccessible::Button} {
}

void GlintButtonAccessible::install() {
    QAccessible::removeFactory(makeAccessible);
    QAccessible::installFactory(makeAccessible);
}

GlintButton* GlintButtonAccessible::button() const {
    return static_cast<GlintButton*>(widget());
}

QString GlintButtonAccessible::name() const {
    const QString caption = button()->plainCaption();
    return caption.isEmpty() ? button()->toolTip() : caption;
}

QKeySequence GlintButtonAccessible::key() const {
    const auto shown = QKeySequence::mnemonic(QString::fromStdString(button()->state().Caption));
    return shown.isEmpty() ? QtSpokenWidget::key() : shown;
}

QAccessible::State GlintButtonAccessible::state() const {
    QAccessible::State state = QtSpokenWidget::state();
    const GlintState& glint = button()->state();
    state.disabled = !glint.Enabled || !button()->isEnabled();
    state.checkable = glint.CheckBoxBehaviour;
    state.checked = glint.CheckBoxBehaviour && glint.Value;
    state.pressed = glint.currentState == kStatePressed;
    return state;
}

QStringList GlintButtonAccessible::actionNames() const {
    return QStringList{pressAction()} + QtSpokenWidget::actionNames();
}

void GlintButtonAccessible::doAction(const QString& name) {
    if (name != pressAction())
        QtSpokenWidget::doAction(name);
    else if (button()->isEnabled() && button()->isVisible())
        button()->press();
}

}  // namespace skylob
