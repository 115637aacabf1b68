#include "controls/GlintButton.h"

namespace skylob {

namespace {

const char* roleName(GlintButton::Role role) {
    switch (role) {
        case GlintButton::Role::Fire:
            return "fire";
        case GlintButton::Role::Danger:
            return "danger";
        case GlintButton::Role::Primary:
            break;
    }
    return "primary";
}

}  // namespace

GlintButton::GlintButton(Role role, const QString& caption, QWidget* parent)
    : QPushButton{caption, parent} {
    setProperty("role", QString::fromLatin1(roleName(role)));
    setAutoDefault(false);  // Enter presses no button
}

}  // namespace skylob
