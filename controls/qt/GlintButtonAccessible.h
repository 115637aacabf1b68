#pragma once

#include <QAccessibleWidget>

namespace skylob {

class GlintButton;

/// What a screen reader gets of a button: its caption as name, its tool tip as description, its
/// toggled and disabled states and a press action.
class GlintButtonAccessible : public QAccessibleWidget {
  public:
    explicit GlintButtonAccessible(GlintButton* button);

    /// Makes screen readers find these for every GlintButton. Any number of calls does no harm.
    static void install();

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

  private:
    GlintButton* button() const;
};

}  // namespace skylob
