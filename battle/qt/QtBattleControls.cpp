#include "battle/qt/QtBattleControls.h"

#include <QLabel>
#include <QScrollBar>
#include <QTextDocument>
#include <algorithm>

#include "base/qt/QtSpokenWidget.h"
#include "battle/BattlePanel.h"
#include "battle/qt/QtHints.h"
#include "battle/qt/QtOptionStrip.h"
#include "battle/qt/QtReportLabel.h"
#include "battle/qt/QtSidePanel.h"
#include "battle/qt/frmPlayGameLayout.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtFormButtons.h"
#include "screen/qt/QtScreen.h"

namespace skylob {

namespace {

void enable(GlintButton& button, bool enabled) {
    if (button.state().Enabled != enabled) button.design().setEnabled(enabled);
}

}  // namespace

QtBattleControls::QtBattleControls(const frmPlayGameLayout& layout, const QtScreenPorts& screen,
                                   BattleOptions& options, QWidget* board)
    : m_windows{screen.windows}, m_oneFrameAtATime{layout.oneFrameAtATime} {
    makeReportRow(board);
    makeSides(layout, screen, board);
    makeButtons(layout, screen, board);
    m_strip = new QtOptionStrip{layout, m_windows, options, board};
}

void QtBattleControls::makeReportRow(QWidget* board) {
    labelReport = new QtReportLabel{board};
    labelReport->setObjectName(QStringLiteral("labelReport"));
    labelScore = new QLabel{board};
    labelScore->setObjectName(QStringLiteral("labelScore"));
    labelScore->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    labelScore->setProperty("role", QStringLiteral("round-small"));
}

void QtBattleControls::makeSides(const frmPlayGameLayout& layout, const QtScreenPorts& screen,
                                 QWidget* board) {
    for (const int side : kSides)
        m_side[side] = new QtSidePanel{
            side, QString::fromStdString(sideCaption(side, screen.shared)), layout.inFrame, board};
}

void QtBattleControls::makeButtons(const frmPlayGameLayout& layout, const QtScreenPorts& screen,
                                   QWidget* board) {
    labelRoundNumber = new QLabel{board};
    labelRoundNumber->setObjectName(QStringLiteral("labelRoundNumber"));
    labelRoundNumber->setAlignment(Qt::AlignCenter);
    labelRoundNumber->setProperty("role",
                                  QLatin1String{layout.oneFrameAtATime ? "round-small" : "round"});

    QtFormButtons buttons{QStringLiteral("frmPlayGame"), screen.shapes, *board};
    cmdShoot = buttons.make(QStringLiteral("cmdShoot"), layout.cmdShoot);
    if (!layout.shootHasCaption) {
        cmdShoot->design().setCaption({});
        cmdShoot->design().setPictureNormal("shell " + std::to_string(layout.shootPicture));
        // Quirk "blank at the ends": one on either side.
        cmdShoot->setToolTip(QObject::tr(" Shoot your Artillery Piece "));
    }
    setSpokenKey(*cmdShoot, Qt::ALT | Qt::Key_S);
    cmdQuit = buttons.make(QStringLiteral("cmdQuit"), layout.cmdQuit);
}

void QtBattleControls::place(const frmPlayGameLayout& layout) {
    labelReport->setGeometry(layout.labelReport);
    labelScore->setGeometry(layout.labelScore);
    for (const int side : kSides) m_side[side]->setGeometry(layout.frame[side]);
    labelRoundNumber->setGeometry(layout.labelRoundNumber);
    cmdShoot->setGeometry(layout.cmdShoot);
    cmdQuit->setGeometry(layout.cmdQuit);
    m_strip->place(layout);
}

QList<QWidget*> QtBattleControls::commands() const {
    return QList<QWidget*>{cmdShoot, cmdQuit} + m_strip->controls();
}

void QtBattleControls::showSides(const BattlePanel& panel) {
    if (cmdShoot->isEnabled() && !panel.commandsEnabled) dropFocusOfCommands();
    for (const int side : kSides) {
        m_side[side]->showPanel(panel.side[side], panel.turn == side);
        if (m_oneFrameAtATime) m_side[side]->setVisible(side == std::max(panel.turn, kLeftSide));
    }
    showReportRow(panel);
}

/// Before they are disabled: it would wander from one to the next, and readers would hear of all.
void QtBattleControls::dropFocusOfCommands() {
    m_focusStaysOnShoot = cmdShoot->hasFocus();
    for (QWidget* command : commands()) command->clearFocus();
}

void QtBattleControls::showReportRow(const BattlePanel& panel) {
    labelReport->showReport(QString::fromStdString(panel.labelReport));
    const QString score = QString::fromStdString(panel.score);
    setSpokenName(*labelScore, score);
    labelScore->setText(QString::fromStdString(panel.labelScore));
    labelScore->setToolTip(Qt::convertFromPlainText(score));
}

void QtBattleControls::showCommands(const BattlePanel& panel) {
    labelRoundNumber->setText(QString::fromStdString(panel.labelRoundNumber));
    m_strip->showPanel(panel);
    const bool wereEnabled = cmdShoot->isEnabled();
    enable(*cmdShoot, panel.commandsEnabled);
    enable(*cmdQuit, panel.commandsEnabled || panel.isWatched);
    if (!wereEnabled && panel.commandsEnabled) moveFocusToTurn(panel.turn);
    showHints(panel);
}

void QtBattleControls::moveFocusToTurn(int turn) {
    if (m_focusStaysOnShoot)
        cmdShoot->setFocus();
    else
        m_side[turn]->scrollSpeed()->setFocus();
}

/// From a new player's first turn to the shot.
void QtBattleControls::showHints(const BattlePanel& panel) {
    if (m_hints && !panel.commandsEnabled)
        m_hints->end();
    else if (panel.commandsEnabled && QtHints::areWanted(m_windows))
        m_hints = new QtHints{m_side[panel.turn], cmdShoot, labelReport, m_windows};
}

}  // namespace skylob
