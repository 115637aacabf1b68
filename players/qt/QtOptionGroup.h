#pragma once

#include <QGroupBox>

class QButtonGroup;

namespace skylob {

/// A frame of option buttons, one of which is checked. Tab reaches that one alone; the arrows go
/// from one to the next.
class QtOptionGroup : public QGroupBox {
    Q_OBJECT

  public:
    /// A button for each caption, from index 1, named "NAME(INDEX)". At first none is checked.
    QtOptionGroup(const QString& name, const QString& title, const QStringList& captions,
                  QWidget* parent);

    /// Checks the button of that index and says nothing.
    void check(int index);

    QList<QWidget*> buttons() const;

  signals:
    /// The user has chosen the button of that index, which may have been the one already.
    void chosen(int index);

  private:
    QButtonGroup* m_group;
};

}  // namespace skylob
