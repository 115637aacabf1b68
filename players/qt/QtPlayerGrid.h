#pragma once

#include <QTableView>
#include <optional>
#include <vector>

#include "players/Lobby.h"

namespace skylob {

class PlayerGridModel;

/// The player list: as long as it is not empty one row is highlighted; a name too long for its
/// column is shown whole as a tool tip. Home and End go to the first and to the last row.
class QtPlayerGrid : public QTableView {
    Q_OBJECT

  public:
    explicit QtPlayerGrid(QWidget* parent);

    /// Makes screen readers find a list in it, of a line for each player.
    static void installAccessible();

    int rowCount() const;
    QString spokenRow(int row) const;

    /// What a double-click on the row does.
    void choose(int row);

    /// As LobbyView::fillGrid() and highlightRow().
    void fill(std::vector<PlayerRecord> records);
    void highlight(int row);

    std::optional<ListedPlayer> highlighted() const;

  signals:
    /// A row was double-clicked, or Enter pressed on it.
    void chosen(const skylob::ListedPlayer& player);

  protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

  private:
    void tellRow();
    void layOutColumns();
    void spreadColumns();

    PlayerGridModel* m_model;
};

}  // namespace skylob
