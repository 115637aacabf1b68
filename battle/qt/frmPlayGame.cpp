#include "battle/qt/frmPlayGame.h"

#include <QCoreApplication>
#include <QFrame>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "base/qt/QtSpokenWidget.h"
#include "battle/FieldDescription.h"
#include "battle/qt/QtBattleKeys.h"
#include "battle/qt/QtDragAim.h"
#include "battle/qt/QtEffectTimers.h"
#include "battle/qt/QtOptionStrip.h"
#include "battle/qt/QtReplayHand.h"
#include "battle/qt/QtReportLabel.h"
#include "battle/qt/QtSidePanel.h"
#include "battle/qt/QtStormHold.h"
#include "battle/qt/frmPlayGameLayout.h"
#include "battle/qt/picGameField.h"
#include "controls/qt/GlintButton.h"
#include "screen/qt/QtInputGate.h"

namespace skylob {

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
      m_dragAim{new QtDragAim{m_field, m_battle}},
      m_controls{m_layout, screen, m_battle.options(), board()} {
    m_fieldEdge->setObjectName(QStringLiteral("fieldEdge"));
    m_layer.setOn(m_controls.strip()->wantsEffects());
    connectControls();
    addBattleKeys(*this, m_battle, m_controls, [this] { quit(); });
    orderTabs(m_controls);
    place(m_layout);
    frmPlayGame::showPanel(m_battle.panel());
}

frmPlayGame::~frmPlayGame() = default;

void frmPlayGame::place(const frmPlayGameLayout& layout) {
    m_fieldEdge->setGeometry(layout.field.adjusted(-1, -1, 1, 1));
    m_field->setGeometry(layout.field);
    m_controls.place(layout);
}

void frmPlayGame::connectControls() {
    // A bar that is set by the rules reports the value that they have already: no change.
    for (const int side : kSides) {
        const QtSidePanel* const panel = m_controls.side(side);
        connect(panel, &QtSidePanel::speedMoved, this,
                [this](int which, int value) { m_battle.aims().setSpeed(which, value); });
        connect(panel, &QtSidePanel::angleMoved, this,
                [this](int which, int value) { m_battle.aims().setAngle(which, value); });
    }
    const QtOptionStrip* const strip = m_controls.strip();
    connect(strip, &QtOptionStrip::volumeChosen, this, &frmPlayGame::volumeChosen);
    connect(strip, &QtOptionStrip::effectsChosen, this, [this](bool wanted) {
        m_layer.setOn(wanted);
        m_field->showChanges();
    });
    connect(m_controls.shoot(), &GlintButton::Click, this, [this] { m_battle.cmdShoot_Click(); });
    connect(m_controls.quit(), &GlintButton::Click, this, [this] { quit(); });
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
BattlePanel frmPlayGame::shown(const BattlePanel& panel) const {
    BattlePanel shown = panel;
    if (m_replayHand)
        for (const int side : kSides) shown.side[side].enabled = false;
    return shown;
}

void frmPlayGame::showPanel(const BattlePanel& panel) {
    m_layer.setMotion(m_shared.motion);  // the desktop may tell it late
    if (!panel.commandsEnabled) m_dragAim->drop();
    m_controls.showSides(shown(panel));
    setSpokenDescription(*m_field,
                         QString::fromStdString(fieldDescription(m_battle.state(), m_shared)));
    m_controls.showCommands(panel);
    m_timers->follow();
    fitField();
    m_field->showChanges();  // a barrel points another way, or it is the other side's turn
    if (!m_gate->isClosed() && !m_replayHand) return;
    bringIntoView(m_field);
    // While the thread is blocked nothing else would bring the changes to the display.
    QCoreApplication::sendPostedEvents(this, QEvent::UpdateRequest);
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
    const int top = m_controls.report()->geometry().bottom() + 1;
    if (!m_stormHold) {
        QList<QObject*> reporting{m_field, m_controls.side(1), m_controls.side(2)};
        for (QWidget* command : m_controls.commands()) reporting.append(command);
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
    m_controls.report()->showCountdown(QString::fromStdString(report));
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
    m_controls.strip()->rememberVolume();
    leave([this] { emit battleClosed(); });
}

}  // namespace skylob
