#include "players/frmSummary.h"

#include <QGridLayout>
#include <QLabel>

#include "app/QtLook.h"
#include "controls/GlintButton.h"
#include "controls/QtPropertyBagFile.h"

namespace skylob {

namespace {

QLabel* plainLabel(const QString& text) {
    auto* label = new QLabel{text};
    label->setTextFormat(Qt::PlainText);
    return label;
}

void addRow(QGridLayout& grid, const QString& text, const PerSide<int>& figures) {
    const int row = grid.rowCount();
    grid.addWidget(plainLabel(text), row, 0);
    for (const int side : {1, 2})
        grid.addWidget(plainLabel(QString::number(figures[side])), row, side, Qt::AlignRight);
}

}  // namespace

frmSummary::frmSummary(const basSkylob& shared, SummaryKind kind, const QtShapes& shapes) {
    const QString word = kind == SummaryKind::Round ? tr("Round") : tr("Set");
    setWindowTitle(QStringLiteral(" Skylob - %1 Summary").arg(word));
    applyLook(*this);

    auto* heading = plainLabel(QString::fromStdString(shared.PlayerName[shared.Winner]) +
                               QStringLiteral(" wins this ") + word + QLatin1Char{'!'});
    heading->setProperty("role", "heading");
    auto* cmdOkay = new GlintButton{QStringLiteral("cmdOkay"), shapes, this};
    cmdOkay->design().readProperties(formBags(QStringLiteral("frmSummary")).bag("cmdOkay"));
    cmdOkay->setFixedSize(144, 52);
    cmdOkay->setFocus();
    connect(cmdOkay, &GlintButton::Click, this, &QDialog::accept);

    auto* grid = new QGridLayout{this};
    grid->setContentsMargins(16, 16, 16, 16);
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(12);
    grid->addWidget(heading, 0, 0, 1, 3, Qt::AlignCenter);
    for (const int side : {1, 2}) {
        grid->addWidget(plainLabel(QString::fromStdString(shared.PlayerName[side])), 1, side,
                        Qt::AlignRight);
    }
    addRow(*grid, tr("Rounds won"), shared.RoundsWon);
    addRow(*grid, tr("Enemy killed this round"), shared.RoundKills);
    addRow(*grid, tr("Enemy killed this set"), shared.TotalKills);
    grid->addWidget(cmdOkay, grid->rowCount(), 0, 1, 3, Qt::AlignCenter);
}

}  // namespace skylob
