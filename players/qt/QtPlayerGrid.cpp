#include "players/qt/QtPlayerGrid.h"

#include <QAccessible>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>

#include "players/qt/PlayerGridModel.h"
#include "players/qt/SpokenGrid.h"

namespace skylob {

namespace {

constexpr int kHeaderHeight = 32, kRowHeight = 30;
constexpr int kWidth = 580, kNameWidth = 214, kSetsWidth = 128, kAverageWidth = 114;

class WholeTextToolTips : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        const bool cut = sizeHint(option, index).width() > view->visualRect(index).width();
        // Made into markup, because a name that looks like markup would be taken for it.
        QToolTip::showText(event->globalPos(),
                           cut ? Qt::convertFromPlainText(index.data().toString()) : QString{},
                           view);
        return true;
    }
};

}  // namespace

QtPlayerGrid::QtPlayerGrid(QWidget* parent)
    : QTableView{parent}, m_model{new PlayerGridModel{this}} {
    setObjectName(QStringLiteral("grid"));
    setModel(m_model);
    setItemDelegate(new WholeTextToolTips{this});
    setAccessibleName(tr("Player list"));
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    layOutColumns();
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { choose(index.row()); });
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        connect(new QShortcut{key, this, nullptr, nullptr, Qt::WidgetShortcut},
                &QShortcut::activated, this, [this] {
                    if (const auto player = highlighted()) emit chosen(*player);
                });
    }
}

void QtPlayerGrid::layOutColumns() {
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    QHeaderView* const header = horizontalHeader();
    header->setFixedHeight(kHeaderHeight);
    header->setSectionsClickable(false);
    header->setHighlightSections(false);
    header->setSectionResizeMode(QHeaderView::Fixed);
    setColumnHidden(PlayerGridModel::RecordNumber, true);
    spreadColumns();
    header->setSectionResizeMode(PlayerGridModel::Ranking, QHeaderView::Stretch);
}

/// Names get as much of the room for more as the three figures together; the ranking what is left.
void QtPlayerGrid::spreadColumns() {
    const int more = std::max(0, width() - kWidth);
    setColumnWidth(PlayerGridModel::Name, kNameWidth + more / 2);
    setColumnWidth(PlayerGridModel::Sets, kSetsWidth + more / 6);
    setColumnWidth(PlayerGridModel::Average, kAverageWidth + more / 6);
}

void QtPlayerGrid::resizeEvent(QResizeEvent* event) {
    spreadColumns();
    QTableView::resizeEvent(event);
    scrollTo(currentIndex());
}

QModelIndex QtPlayerGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    // The toolkit's own go to the ends of the row.
    if (action == MoveHome) return m_model->index(0, PlayerGridModel::Name);
    if (action == MoveEnd) return m_model->index(m_model->rowCount() - 1, PlayerGridModel::Name);
    return QTableView::moveCursor(action, modifiers);
}

/// A click beside the rows, or with Ctrl, would take the highlight away.
QItemSelectionModel::SelectionFlags QtPlayerGrid::selectionCommand(const QModelIndex& index,
                                                                   const QEvent*) const {
    if (!index.isValid()) return QItemSelectionModel::NoUpdate;
    return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

QString QtPlayerGrid::spokenRow(int row) const {
    return m_model->spokenRow(row);
}

int QtPlayerGrid::rowCount() const {
    return m_model->rowCount();
}

void QtPlayerGrid::choose(int row) {
    emit chosen(m_model->player(row));
}

void QtPlayerGrid::fill(std::vector<PlayerRecord> records) {
    m_model->fill(std::move(records));
    highlight(0);
}

void QtPlayerGrid::highlight(int row) {
    const int last = m_model->rowCount() - 1;
    setCurrentIndex(m_model->index(std::min(row, last), PlayerGridModel::Name));
}

std::optional<ListedPlayer> QtPlayerGrid::highlighted() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.isEmpty()) return std::nullopt;
    return m_model->player(rows.front().row());
}

void QtPlayerGrid::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    // The toolkit tells of the list first, when this has been handled.
    if (QAccessible::isActive())
        QMetaObject::invokeMethod(this, &QtPlayerGrid::tellRow, Qt::QueuedConnection);
}

/// The table's own ways with these two tell of cells, and do nothing else.
void QtPlayerGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QAbstractItemView::currentChanged(current, previous);  // NOLINT(bugprone-parent-virtual-call)
    tellRow();
}

void QtPlayerGrid::selectionChanged(const QItemSelection& selected,
                                    const QItemSelection& deselected) {
    QAbstractItemView::selectionChanged(  // NOLINT(bugprone-parent-virtual-call)
        selected, deselected);
}

void QtPlayerGrid::tellRow() {
    if (!hasFocus() || !currentIndex().isValid()) return;
    QAccessibleEvent event{this, QAccessible::Focus};
    event.setChild(currentIndex().row());
    QAccessible::updateAccessibility(&event);
}

void QtPlayerGrid::installAccessible() {
    SpokenGrid::install();
}

}  // namespace skylob
