#pragma once

#include <QTableView>
#include <optional>
#include <vector>

#include "players/Lobby.h"

namespace skylob {

class PlayerGridModel;

/// The player list: one row highlighted at a time, a name too long for its column shown whole as
/// a tool tip.
class QtPlayerGrid : public QTableView {
    Q_OBJECT

  public:
    explicit QtPlayerGrid(QWidget* parent);

    /// As LobbyView::fillGrid() and highlightRow().
    void fill(std::vector<PlayerRecord> records);
    void highlight(int row);

    std::optional<ListedPlayer> highlighted() const;

  signals:
    /// A row was double-clicked, or Enter pressed on it.
    void chosen(const skylob::ListedPlayer& player);

  private:
    void layOutColumns();

    PlayerGridModel* m_model;
};

}  // namespace skylob
