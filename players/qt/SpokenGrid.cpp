#include "players/qt/SpokenGrid.h"

#include "players/qt/QtPlayerGrid.h"

namespace skylob {

namespace {

/// A row by its number, whoever stands there.
class SpokenRow : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    SpokenRow(QtPlayerGrid* grid, int row) : m_grid{grid}, m_row{row} {}

    int row() const { return m_row; }

    bool isValid() const override { return m_row < m_grid->rowCount(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(m_grid);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name && isValid() ? m_grid->spokenRow(m_row) : QString{};
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        const QWidget* const view = m_grid->viewport();
        const QRect line{0, m_grid->rowViewportPosition(m_row), view->width(),
                         m_grid->rowHeight(m_row)};
        return (line & view->rect()).translated(view->mapToGlobal(QPoint{0, 0}));
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        const bool isCurrent = m_grid->currentIndex().row() == m_row;
        state.focusable = state.selectable = true;
        state.selected = state.active = isCurrent;
        state.focused = isCurrent && m_grid->hasFocus();
        state.offscreen = rect().isEmpty();
        state.invisible = !m_grid->isVisible();
        state.disabled = !m_grid->isEnabled();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override {
        if (!isValid() || !m_grid->isVisible() || !m_grid->isEnabled()) return;
        m_grid->highlight(m_row);
        if (action == pressAction())
            m_grid->choose(m_row);
        else
            m_grid->setFocus();
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    QtPlayerGrid* m_grid;
    int m_row;
};

QAccessibleInterface* makeAccessible(const QString&, QObject* object) {
    auto* grid = qobject_cast<QtPlayerGrid*>(object);
    return grid ? new SpokenGrid{grid} : nullptr;
}

}  // namespace

SpokenGrid::SpokenGrid(QtPlayerGrid* grid) : QtSpokenWidget{grid, QAccessible::List} {
}

SpokenGrid::~SpokenGrid() {
    for (const QAccessible::Id id : std::as_const(m_rows))
        QAccessible::deleteAccessibleInterface(id);
}

void SpokenGrid::install() {
    QAccessible::removeFactory(makeAccessible);
    QAccessible::installFactory(makeAccessible);
}

QtPlayerGrid* SpokenGrid::grid() const {
    return static_cast<QtPlayerGrid*>(widget());
}

int SpokenGrid::childCount() const {
    return grid()->rowCount();
}

QAccessibleInterface* SpokenGrid::child(int row) const {
    if (row < 0 || row >= childCount()) return nullptr;
    const auto known = m_rows.constFind(row);
    if (known != m_rows.cend()) return QAccessible::accessibleInterface(*known);
    auto* const made = new SpokenRow{grid(), row};
    m_rows.insert(row, QAccessible::registerAccessibleInterface(made));
    return made;
}

int SpokenGrid::indexOfChild(const QAccessibleInterface* child) const {
    const auto* const row = dynamic_cast<const SpokenRow*>(child);
    return row ? row->row() : -1;
}

QAccessibleInterface* SpokenGrid::childAt(int x, int y) const {
    const QPoint place = grid()->viewport()->mapFromGlobal(QPoint{x, y});
    return child(grid()->rowAt(place.y()));
}

QAccessibleInterface* SpokenGrid::focusChild() const {
    return grid()->hasFocus() ? child(grid()->currentIndex().row()) : nullptr;
}

}  // namespace skylob
