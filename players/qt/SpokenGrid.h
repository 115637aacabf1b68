#pragma once

#include <QHash>

#include "base/qt/QtSpokenWidget.h"

namespace skylob {

class QtPlayerGrid;

/// The player list as screen readers get it: a list of players, who can be moved to and chosen.
/// Columns, hidden ones among them, are not there; a row is heard as a whole.
class SpokenGrid : public QtSpokenWidget {
  public:
    explicit SpokenGrid(QtPlayerGrid* grid);
    ~SpokenGrid() override;

    static void install();

    int childCount() const override;
    QAccessibleInterface* child(int row) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

  private:
    QtPlayerGrid* grid() const;

    mutable QHash<int, QAccessible::Id> m_rows;  ///< those that a reader has asked for
};

}  // namespace skylob
