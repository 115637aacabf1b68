#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "players/PlayerFile.h"

namespace skylob {

/// The player list as a table: name, sets, average, ranking, and the record's number in the file.
class PlayerGridModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { Name, Sets, Average, Ranking, RecordNumber, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    /// Takes the records of a file, in its order.
    void fill(std::vector<PlayerRecord> records);

    /// Who stands in that row, from 0.
    ListedPlayer player(int row) const {
        return {row + 1, m_records[static_cast<std::size_t>(row)]};
    }

    /// What is heard of that row, at once: "Ann, sets played 14, won 11, average score 46, ranking
    /// 1". Figures that are not shown are not heard.
    QString spokenRow(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    std::vector<PlayerRecord> m_records;
};

}  // namespace skylob
