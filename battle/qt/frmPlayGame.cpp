#include "battle/qt/frmPlayGame.h"

#include <QCoreApplication>
#include <QFrame>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QTextDocument>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "base/qt/QtSpokenWidget.h"
#include "battle/FieldDescription.h"
#include "battle/qt/QtBattleKeys.h"
#include "battle/qt/QtDragAim.h"
#include "battle/qt/QtEffectTimers.h"
#include "battle/qt/QtHints.h"
#include "battle/qt/QtOptionStrip.h"
#include "battle/qt/QtReplayHand.h"
#include "battle/qt/QtReportLabel.h"
#include "battle/qt/QtSidePanel.h"
#include "battle/qt/QtStormHold.h"
#include "battle/qt/frmPlayGameLayout.h"
#include "battle/qt/picGameField.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtFormButtons.h"
#include "screen/qt/QtInputGate.h"

namespace skylob {

namespace {

void enable(GlintButton& button, bool enabled) {
    if (button.state().Enabled != enabled) button.design().setEnabled(enabled);
}

}  // namespace

frmPlayGame::frmPlayGame(const QtScreenPorts& screen, const BattlePorts& ports, const QSize& room)
    : QtScreen{{.name = QStringLiteral("frmPlayGame"),
                // Quirk "blank at the ends": captions have one at the front.
                .caption = QStringLiteral(" Skylob - Battlefield"),
                .size = layoutForRoom(screen.shared.ScreenSize, room).screen,
                .mayGrow = true},
               screen},
      m_layout{layoutForRoom(m_shared.ScreenSize, room)},
      m_battle{m_shared, ports, *this},
      m_gate{new QtInputGate{this}},
      m_timers{new QtEffectTimers{this, m_battle}},
      m_fieldEdge{new QFrame{board()}},
      m_field{new picGameField{m_battle.picture(), m_layer, m_shapes, board()}},
      m_dragAim{new QtDragAim{m_field, m_battle}} {
    m_fieldEdge->setObjectName(QStringLiteral("fieldEdge"));
    makeReportRow();
    makeSidePanels();
    makeButtons();
    m_strip = new QtOptionStrip{m_layout, m_windows, m_battle.options(), board()};
    m_layer.setOn(m_strip->wantsEffects());
    m_layer.setMotion(m_shared.motion);
    connectControls();
    const QtBattleControls controls{m_side, cmdShoot, cmdQuit, m_strip};
    addBattleKeys(*this, m_battle, controls, [this] { quit(); });
    orderTabs(controls);
    place(m_layout);
    frmPlayGame::showPanel(m_battle.panel());
}

frmPlayGame::~frmPlayGame() = default;

void frmPlayGame::makeReportRow() {
    labelReport = new QtReportLabel{board()};
    labelReport->setObjectName(QStringLiteral("labelReport"));
    labelScore = new QLabel{board()};
    labelScore->setObjectName(QStringLiteral("labelScore"));
    labelScore->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    labelScore->setProperty("role", QStringLiteral("round-small"));
}

void frmPlayGame::makeSidePanels() {
    for (const int side : kSides)
        m_side[side] = new QtSidePanel{side, QString::fromStdString(sideCaption(side, m_shared)),
                                       m_layout.inFrame, board()};
}

void frmPlayGame::makeButtons() {
    labelRoundNumber = new QLabel{board()};
    labelRoundNumber->setObjectName(QStringLiteral("labelRoundNumber"));
    labelRoundNumber->setAlignment(Qt::AlignCenter);
    labelRoundNumber->setProperty(
        "role", QLatin1String{m_layout.oneFrameAtATime ? "round-small" : "round"});

    QtFormButtons buttons{objectName(), m_shapes, *board()};
    cmdShoot = buttons.make(QStringLiteral("cmdShoot"), m_layout.cmdShoot);
    if (!m_layout.shootHasCaption) {
        cmdShoot->design().setCaption({});
        cmdShoot->design().setPictureNormal("shell " + std::to_string(m_layout.shootPicture));
        // Quirk "blank at the ends": one on either side.
        cmdShoot->setToolTip(tr(" Shoot your Artillery Piece "));
    }
    setSpokenKey(*cmdShoot, Qt::ALT | Qt::Key_S);
    cmdQuit = buttons.make(QStringLiteral("cmdQuit"), m_layout.cmdQuit);
}

void frmPlayGame::place(const frmPlayGameLayout& layout) {
    m_fieldEdge->setGeometry(layout.field.adjusted(-1, -1, 1, 1));
    m_field->setGeometry(layout.field);
    labelReport->setGeometry(layout.labelReport);
    labelScore->setGeometry(layout.labelScore);
    for (const int side : kSides) m_side[side]->setGeometry(layout.frame[side]);
    labelRoundNumber->setGeometry(layout.labelRoundNumber);
    cmdShoot->setGeometry(layout.cmdShoot);
    cmdQuit->setGeometry(layout.cmdQuit);
    m_strip->place(layout);
}

void frmPlayGame::connectControls() {
    // A bar that is set by the rules reports the value that they have already: no change.
    for (const int side : kSides) {
        connect(m_side[side], &QtSidePanel::speedMoved, this,
                [this](int which, int value) { m_battle.aims().setSpeed(which, value); });
        connect(m_side[side], &QtSidePanel::angleMoved, this,
                [this](int which, int value) { m_battle.aims().setAngle(which, value); });
    }
    connect(m_strip, &QtOptionStrip::volumeChosen, this, &frmPlayGame::volumeChosen);
    connect(m_strip, &QtOptionStrip::effectsChosen, this, [this](bool wanted) {
        m_layer.setOn(wanted);
        m_field->showChanges();
    });
    connect(cmdShoot, &GlintButton::Click, this, [this] { m_battle.cmdShoot_Click(); });
    connect(cmdQuit, &GlintButton::Click, this, [this] { quit(); });
    connect(m_field, &picGameField::pieceClicked, this, [this] { m_battle.FieldPiece_Click(); });
    connect(m_timers, &QtEffectTimers::ticked, this, &frmPlayGame::fitField);
}

void frmPlayGame::watch(BattleReplay& replay) {
    m_battle.watch();
    m_replayHand = new QtReplayHand{m_battle, replay, this};
    connect(m_replayHand, &QtReplayHand::ended, this, &frmPlayGame::replayEnded);
    setWindowTitle(windowTitle() + tr(" (replay)"));
}

void frmPlayGame::quit() {
    if (m_replayHand)
        m_replayHand->leaveSoon();
    else
        m_battle.cmdQuit_Click();
}

void frmPlayGame::Form_Activate() {
    queue([this] { m_battle.Form_Activate(); });
}

void frmPlayGame::boardResized() {
    place(stretched(m_layout, board()->size()));
    fitField();
}

/// Called wherever the size or the display may be another one, or a shot or an effect over: till
/// then the picture is shown scaled.
void frmPlayGame::fitField() {
    if (m_stormHold || !m_battle.fieldIsStill()) return;  // it is done afterwards
    const bool refitted = m_field->fitPicture(m_layout.field.size());
    const int width = displayWidth();
    const bool anotherDisplay = std::exchange(m_displayWidth, width) != width;
    if ((refitted || anotherDisplay) && m_battle.state().RoundNumber > 0) m_battle.replotField();
}

void frmPlayGame::showEvent(QShowEvent* event) {
    QtScreen::showEvent(event);
    fitField();
    // What is not in the persistent picture, such as a shell's trail, is lost with the window. A
    // storm's bolts are not: they stand until it is over.
    if (!m_stormHold) m_battle.picture().refresh();
    m_field->showChanges();
    connect(windowHandle(), &QWindow::screenChanged, this, &frmPlayGame::fitField,
            Qt::UniqueConnection);
}

QList<QRect> frmPlayGame::toBeSeen() const {
    QList<QRect> places;
    for (const int side : kSides) places.append(m_field->placeOfPiece(side));
    if (const auto& report = m_battle.state().report)
        if (const auto& at = m_battle.scene().lastLanding[report->side])
            places.append(m_field->placeOf(*at));
    return places;
}

void frmPlayGame::askedToClose() {
    quit();
}

void frmPlayGame::showField() {
    if (const auto place = m_field->placeOfShell(m_battle.scene())) bringIntoView(*m_field, *place);
    m_field->showChanges();
}

/// The computer's bars, too, are nobody's in a set that is watched: input is not held meanwhile.
SidePanel frmPlayGame::shown(const SidePanel& side) const {
    SidePanel shown = side;
    if (m_replayHand) shown.enabled = false;
    return shown;
}

void frmPlayGame::showPanel(const BattlePanel& panel) {
    if (cmdShoot->isEnabled() && !panel.commandsEnabled) dropFocusOfCommands();
    if (!panel.commandsEnabled) m_dragAim->drop();
    for (const int side : kSides) {
        m_side[side]->showPanel(shown(panel.side[side]), panel.turn == side);
        if (m_layout.oneFrameAtATime)
            m_side[side]->setVisible(side == std::max(panel.turn, kLeftSide));
    }
    showReportRow(panel);
    setSpokenDescription(*m_field,
                         QString::fromStdString(fieldDescription(m_battle.state(), m_shared)));
    labelRoundNumber->setText(QString::fromStdString(panel.labelRoundNumber));
    m_strip->showPanel(panel);
    showCommands(panel);
    m_timers->follow();
    fitField();
    m_field->showChanges();  // a barrel points another way, or it is the other side's turn
    if (!m_gate->isClosed() && !m_replayHand) return;
    bringIntoView(m_field);
    // While the thread is blocked nothing else would bring the changes to the display.
    QCoreApplication::sendPostedEvents(this, QEvent::UpdateRequest);
}

/// Before they are disabled: it would wander from one to the next, and readers would hear of all.
void frmPlayGame::dropFocusOfCommands() {
    m_focusStaysOnShoot = cmdShoot->hasFocus();
    QList<QWidget*> commands{cmdShoot, cmdQuit};
    commands += m_strip->controls();
    for (QWidget* command : commands) command->clearFocus();
}

void frmPlayGame::showReportRow(const BattlePanel& panel) {
    labelReport->showReport(QString::fromStdString(panel.labelReport));
    const QString score = QString::fromStdString(panel.score);
    setSpokenName(*labelScore, score);
    labelScore->setText(QString::fromStdString(panel.labelScore));
    labelScore->setToolTip(Qt::convertFromPlainText(score));
}

void frmPlayGame::showCommands(const BattlePanel& panel) {
    const bool wereEnabled = cmdShoot->isEnabled();
    enable(*cmdShoot, panel.commandsEnabled);
    enable(*cmdQuit, panel.commandsEnabled || panel.isWatched);
    if (!wereEnabled && panel.commandsEnabled) moveFocusToTurn(panel.turn);
    showHints(panel);
}

/// From a new player's first turn to the shot.
void frmPlayGame::showHints(const BattlePanel& panel) {
    if (m_hints && !panel.commandsEnabled)
        m_hints->end();
    else if (panel.commandsEnabled && QtHints::areWanted(m_windows))
        m_hints = new QtHints{m_side[panel.turn], cmdShoot, labelReport, m_windows};
}

void frmPlayGame::moveFocusToTurn(int turn) {
    if (m_focusStaysOnShoot)
        cmdShoot->setFocus();
    else
        m_side[turn]->scrollSpeed()->setFocus();
}

void frmPlayGame::showCursor(BattleCursor cursor) {
    if (cursor == BattleCursor::Hourglass)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

/// What somebody who only watches wants, to leave, is to be heard after the shot.
void frmPlayGame::holdInput() {
    if (!m_replayHand) m_gate->close();
}

void frmPlayGame::releaseInput() {
    if (!m_replayHand) m_gate->dropInputAndOpen();
}

void frmPlayGame::showStorm() {
    const int top = labelReport->geometry().bottom() + 1;
    if (!m_stormHold) {
        QList<QObject*> reporting{m_field, m_side[1], m_side[2], cmdShoot, cmdQuit};
        for (QWidget* option : m_strip->controls()) reporting.append(option);
        m_stormHold = std::make_unique<QtStormHold>(*board(), top, reporting);
    }
    m_stormHold->fitVeil(top);
    m_field->showStorm();
}

void frmPlayGame::endStorm() {
    if (!m_stormHold) return;
    m_stormHold.reset();
    m_field->endStorm();
    fitField();
    showPanel(m_battle.panel());
}

void frmPlayGame::showReport(const std::string& report) {
    labelReport->showCountdown(QString::fromStdString(report));
}

int frmPlayGame::displayWidth() const {
    // The board is wider where it scrolls: with fine lines its ground would have gaps.
    const int width = std::max(screen()->size().width(), board()->width());
    return qRound(width * screen()->devicePixelRatio());
}

void frmPlayGame::queue(std::function<void()> task) {
    // A timer and not a posted call: the pacer's watched pause leaves timers out, and calls in.
    auto* timer = new QTimer{this};
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, std::move(task));
    connect(timer, &QTimer::timeout, timer, &QObject::deleteLater);
    timer->start(0);
}

void frmPlayGame::showSummary(SummaryKind kind) {
    if (kind == SummaryKind::Round)
        emit roundDecided();
    else
        emit setDecided();
}

void frmPlayGame::showRules() {
    emit rulesWanted();
}

void frmPlayGame::closeBattle() {
    m_timers->end();
    m_strip->rememberVolume();
    leave([this] { emit battleClosed(); });
}

}  // namespace skylob
