#include "players/qt/PlayerGridModel.h"

namespace skylob {

namespace {

/// The left column's texts begin at its left edge, all others are centred.
QVariant alignment(int column) {
    return QVariant::fromValue(column == PlayerGridModel::Name ? Qt::AlignLeft | Qt::AlignVCenter
                                                               : Qt::AlignCenter);
}

QString unlessZero(int number) {
    return number == 0 ? QString{} : QString::number(number);
}

QString text(const ListedPlayer& player, int column) {
    const PlayerRecord& record = player.record;
    switch (column) {
        case PlayerGridModel::Name:
            return QString::fromStdString(player.name());
        case PlayerGridModel::Sets:
            return QStringLiteral("%1/%2").arg(record.SetsPlayed).arg(record.SetsWon);
        case PlayerGridModel::Average:
            return unlessZero(record.AverageScore);
        case PlayerGridModel::Ranking:
            return unlessZero(record.Ranking);
        default:
            return QString::number(player.recordNumber);
    }
}

}  // namespace

void PlayerGridModel::fill(std::vector<PlayerRecord> records) {
    beginResetModel();
    m_records = std::move(records);
    endResetModel();
}

QString PlayerGridModel::spokenRow(int row) const {
    const ListedPlayer of = player(row);
    const PlayerRecord& record = of.record;
    QString text = QString::fromStdString(of.name()) +
                   tr(", sets played %1, won %2").arg(record.SetsPlayed).arg(record.SetsWon);
    if (record.AverageScore != 0) text += tr(", average score %1").arg(record.AverageScore);
    if (record.Ranking != 0) text += tr(", ranking %1").arg(record.Ranking);
    return text;
}

int PlayerGridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int PlayerGridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PlayerGridModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole) return alignment(index.column());
    if (role != Qt::DisplayRole) return {};
    return text(player(index.row()), index.column());
}

QVariant PlayerGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return alignment(section);
    if (role != Qt::DisplayRole) return {};
    constexpr const char* kHeaders[ColumnCount] = {"Double-Click to Select Player",
                                                   "Sets Played/Won", "Average Score",
                                                   "Current Ranking", "Rec#Holder"};
    return QString::fromLatin1(kHeaders[section]);
}

}  // namespace skylob
