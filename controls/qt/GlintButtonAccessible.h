#pragma once

#include "base/qt/QtSpokenWidget.h"

namespace skylob {

class GlintButton;

/// What a screen reader gets of a button: its caption as name, or its tool tip where it has none,
/// its access key, its toggled and disabled states and a press action.
class GlintButtonAccessible : public QtSpokenWidget {
  public:
    explicit GlintButtonAccessible(GlintButton* button);

    /// Makes screen readers find these for every GlintButton. Any number of calls does no harm.
    static void install();

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

  protected:
    QString name() const override;
    QKeySequence key() const override;

  private:
    GlintButton* button() const;
};

}  // namespace skylob
