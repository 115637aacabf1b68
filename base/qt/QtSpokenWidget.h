#pragma once

#include <QAccessibleWidget>

class QKeySequence;

namespace skylob {

/// What screen readers are told of a widget beyond what it shows. Such facts are properties of the
/// widget, so that they can be set before and after a reader has come.

/// What kind of thing it is, where its class does not say so.
void setSpokenRole(QWidget& widget, QAccessible::Role role);

/// Its accessible name and description, set only where they are others than before: of every
/// setting the toolkit tells readers as of a change.
void setSpokenName(QWidget& widget, const QString& name);
void setSpokenDescription(QWidget& widget, const QString& description);

/// The key that presses, ticks or focuses it, where its caption does not show one.
void setSpokenKey(QWidget& widget, const QKeySequence& key);

/// It is decoration, or another widget tells the same: readers neither find it nor hear when its
/// text or its state changes.
void keepFromReaders(QWidget& widget);
bool isKeptFromReaders(const QObject* widget);

/// A text as it is heard: in one line, without blanks at its ends, and without markup where it is
/// one that was made for the screen.
QString spokenLine(const QString& text);

/// A widget as readers get it. Name and description are spoken lines, and never say the same; the
/// widgets that are kept from readers are not among its children.
class QtSpokenWidget : public QAccessibleWidget {
  public:
    QtSpokenWidget(QWidget* widget, QAccessible::Role role);

    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
    bool isValid() const override;
    QStringList keyBindingsForAction(const QString& action) const override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

  protected:
    /// The accessible name, or a window's title.
    virtual QString name() const;
    virtual QKeySequence key() const;

  private:
    QString description() const;
    QList<QAccessibleInterface*> children() const;
};

}  // namespace skylob
