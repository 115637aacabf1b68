#pragma once

#include <QPushButton>

namespace skylob {

/// The button of every screen. What it is for decides its colours.
class GlintButton : public QPushButton {
    Q_OBJECT

  public:
    enum class Role { Primary, Fire, Danger };

    /// An ampersand in the caption marks the access key; "\n" begins a second line.
    GlintButton(Role role, const QString& caption, QWidget* parent);
};

}  // namespace skylob
