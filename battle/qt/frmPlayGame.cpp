#include "battle/qt/frmPlayGame.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextDocument>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "battle/qt/QtEffectTimers.h"
#include "battle/qt/QtReportLabel.h"
#include "battle/qt/QtSidePanel.h"
#include "battle/qt/frmPlayGameLayout.h"
#include "battle/qt/picGameField.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtFormButtons.h"
#include "look/qt/QtColour.h"
#include "screen/qt/QtInputGate.h"

namespace skylob {

namespace {

void enable(GlintButton& button, bool enabled) {
    if (button.state().Enabled != enabled) button.design().setEnabled(enabled);
}

}  // namespace

frmPlayGame::frmPlayGame(const QtScreenPorts& screen, const BattlePorts& ports)
    : QtScreen{{.name = QStringLiteral("frmPlayGame"),
                // Quirk "blank at the ends": captions have one at the front.
                .caption = QStringLiteral(" Skylob - Battlefield"),
                .size = layoutForScreenSize(screen.shared.ScreenSize).screen},
               screen},
      m_layout{layoutForScreenSize(m_shared.ScreenSize)},
      m_battle{m_shared, ports, *this},
      m_gate{new QtInputGate{this}},
      m_timers{new QtEffectTimers{this, m_battle}},
      m_field{new picGameField{m_battle.picture(), m_layer, m_shapes, this}} {
    m_field->setGeometry(m_layout.field);
    makeReportRow();
    makeSidePanels();
    makeButtons();
    makeOptions();
    connectControls();
    addShortcuts();
    setTabOrder();
    frmPlayGame::showPanel(m_battle.panel());
}

void frmPlayGame::makeReportRow() {
    labelReport = new QtReportLabel{this};
    labelReport->setObjectName(QStringLiteral("labelReport"));
    labelReport->setGeometry(m_layout.labelReport);
    labelScore = new QLabel{this};
    labelScore->setObjectName(QStringLiteral("labelScore"));
    labelScore->setGeometry(m_layout.labelScore);
    labelScore->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    labelScore->setProperty("role", QStringLiteral("round-small"));
}

void frmPlayGame::makeSidePanels() {
    for (const int side : kSides) {
        m_side[side] = new QtSidePanel{side, caption(side), m_layout.inFrame, this};
        m_side[side]->setGeometry(m_layout.frame[side]);
    }
}

QString frmPlayGame::caption(int side) const {
    const QString name = QString::fromStdString(m_shared.PlayerName[side]);
    if (!m_shared.isComputer(side)) return name;
    switch (m_shared.SkillLevel) {
        case kGoodSkill:
            return name + QStringLiteral(" (Skill level: Good)");
        case kFairSkill:
            return name + QStringLiteral(" (Skill level: Fair)");
        case kPoorSkill:
            return name + QStringLiteral(" (Skill level: Poor)");
        default:
            return name;
    }
}

void frmPlayGame::makeButtons() {
    labelRoundNumber = new QLabel{this};
    labelRoundNumber->setObjectName(QStringLiteral("labelRoundNumber"));
    labelRoundNumber->setGeometry(m_layout.labelRoundNumber);
    labelRoundNumber->setAlignment(Qt::AlignCenter);
    labelRoundNumber->setProperty(
        "role", QLatin1String{m_layout.oneFrameAtATime ? "round-small" : "round"});

    QtFormButtons buttons{objectName(), m_shapes, *this};
    cmdShoot = buttons.make(QStringLiteral("cmdShoot"), m_layout.cmdShoot);
    if (!m_layout.shootHasCaption) {
        cmdShoot->design().setCaption({});
        cmdShoot->design().setPictureNormal("shell " + std::to_string(m_layout.shootPicture));
        // Quirk "blank at the ends": one on either side.
        cmdShoot->setToolTip(tr(" Shoot your Artillery Piece "));
    }
    cmdQuit = buttons.make(QStringLiteral("cmdQuit"), m_layout.cmdQuit);
}

void frmPlayGame::makeOptions() {
    auto* strip = new QFrame{this};
    strip->setObjectName(QStringLiteral("strip"));
    strip->setGeometry(m_layout.strip);

    QWidget* const gameSpeedParent =
        m_layout.gameSpeedInStrip ? strip : static_cast<QWidget*>(this);
    labelGameSpeed = new QLabel{gameSpeedParent};
    labelGameSpeed->setObjectName(QStringLiteral("labelGameSpeed"));
    labelGameSpeed->setGeometry(m_layout.labelGameSpeed);
    if (!m_layout.gameSpeedInStrip) labelGameSpeed->setAlignment(Qt::AlignCenter);
    scrollGameSpeed = makeScrollBar(QStringLiteral("scrollGameSpeed"), kGameSpeedRange,
                                    m_layout.scrollGameSpeed, gameSpeedParent);
    scrollGameSpeed->setAccessibleName(tr("Game speed"));

    chkSound = makeBox("chkSound", tr("S&ound"), m_layout.chkSound, strip);
    chkTrajectory = makeBox("chkTrajectory", tr("&Trajectory"), m_layout.chkTrajectory, strip);
    chkMeteors = makeBox("chkMeteors", tr("&Meteors"), m_layout.chkMeteors, strip);
    chkLightning = makeBox("chkLightning", tr("&Lightning"), m_layout.chkLightning, strip);
    chkWind = makeBox("chkWind", {}, m_layout.chkWind, strip);
}

QCheckBox* frmPlayGame::makeBox(const char* name, const QString& caption, const QRect& place,
                                QWidget* strip) {
    auto* box = new QCheckBox{caption, strip};
    box->setObjectName(QLatin1String{name});
    box->setGeometry(place);
    return box;
}

void frmPlayGame::connectControls() {
    // A bar that is set by the rules reports the value that they have already: no change.
    for (const int side : kSides) {
        connect(m_side[side], &QtSidePanel::speedMoved, this,
                [this](int which, int value) { m_battle.aims().setSpeed(which, value); });
        connect(m_side[side], &QtSidePanel::angleMoved, this,
                [this](int which, int value) { m_battle.aims().setAngle(which, value); });
    }
    BattleOptions& options = m_battle.options();
    connect(scrollGameSpeed, &QScrollBar::valueChanged, this,
            [&options](int value) { options.setGameSpeed(value); });
    const auto onClick = [this, &options](QCheckBox* box, void (BattleOptions::*handler)(bool)) {
        connect(box, &QCheckBox::clicked, this,
                [&options, handler](bool ticked) { (options.*handler)(ticked); });
    };
    onClick(chkSound, &BattleOptions::chkSound_Click);
    onClick(chkTrajectory, &BattleOptions::chkTrajectory_Click);
    onClick(chkMeteors, &BattleOptions::chkMeteors_Click);
    onClick(chkLightning, &BattleOptions::chkLightning_Click);
    onClick(chkWind, &BattleOptions::chkWind_Click);
    connect(cmdShoot, &GlintButton::Click, this, [this] { m_battle.cmdShoot_Click(); });
    connect(cmdQuit, &GlintButton::Click, this, [this] { m_battle.cmdQuit_Click(); });
    connect(m_field, &picGameField::pieceClicked, this, [this] { m_battle.FieldPiece_Click(); });
}

void frmPlayGame::addShortcuts() {
    const auto onKey = [this](const QKeySequence& key, std::function<void()> action) {
        auto* shortcut = new QShortcut{key, this};
        shortcut->setAutoRepeat(false);  // a key that is held is pressed once
        connect(shortcut, &QShortcut::activated, this, std::move(action));
    };
    const auto shooterSide = [this] { return m_side[m_battle.state().Shooter]; };
    onKey(Qt::Key_Escape, [this] { m_battle.cmdQuit_Click(); });
    onKey(Qt::ALT | Qt::Key_P, [shooterSide] { shooterSide()->scrollSpeed()->setFocus(); });
    onKey(Qt::ALT | Qt::Key_A, [shooterSide] { shooterSide()->scrollAngle()->setFocus(); });
    onKey(Qt::ALT | Qt::Key_G, [this] { scrollGameSpeed->setFocus(); });
    onKey(Qt::ALT | Qt::Key_W, [this] { chkWind->click(); });
    if (!m_layout.shootHasCaption)
        onKey(Qt::ALT | Qt::Key_S, [this] { m_battle.cmdShoot_Click(); });
}

void frmPlayGame::setTabOrder() {
    const QList<QWidget*> order{m_side[1]->scrollSpeed(),
                                m_side[1]->scrollAngle(),
                                m_side[2]->scrollSpeed(),
                                m_side[2]->scrollAngle(),
                                cmdShoot,
                                cmdQuit,
                                scrollGameSpeed,
                                chkSound,
                                chkTrajectory,
                                chkMeteors,
                                chkLightning,
                                chkWind};
    for (qsizetype i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

void frmPlayGame::Form_Activate() {
    queue([this] { m_battle.Form_Activate(); });
}

void frmPlayGame::fitField() {
    const bool refitted = m_field->fitPicture();
    const int width = displayWidth();
    const bool anotherDisplay = std::exchange(m_displayWidth, width) != width;
    if ((refitted || anotherDisplay) && m_battle.state().RoundNumber > 0) m_battle.redrawField();
}

void frmPlayGame::showEvent(QShowEvent* event) {
    QtScreen::showEvent(event);
    fitField();
    // What is not in the persistent picture, such as a shell's trail, is lost with the window.
    m_battle.picture().refresh();
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
    m_battle.cmdQuit_Click();
}

void frmPlayGame::paintEvent(QPaintEvent* event) {
    QtScreen::paintEvent(event);
    QPainter{this}.fillRect(m_layout.field.adjusted(-1, -1, 1, 1), toQColor(themeColour("line")));
}

void frmPlayGame::showField() {
    m_field->showChanges();
}

void frmPlayGame::showPanel(const BattlePanel& panel) {
    for (const int side : kSides) {
        m_side[side]->showPanel(panel.side[side], panel.turn == side);
        if (m_layout.oneFrameAtATime) m_side[side]->setVisible(side == std::max(panel.turn, 1));
    }
    showReportRow(panel);
    labelRoundNumber->setText(QString::fromStdString(panel.labelRoundNumber));
    labelGameSpeed->setText(QString::fromStdString(panel.labelGameSpeed));
    scrollGameSpeed->setValue(panel.scrollGameSpeed);
    chkSound->setChecked(panel.chkSound);
    chkTrajectory->setChecked(panel.chkTrajectory);
    chkMeteors->setChecked(panel.chkMeteors);
    chkLightning->setChecked(panel.chkLightning);
    chkWind->setChecked(panel.chkWind);
    chkWind->setText(QString::fromStdString(panel.chkWindCaption));
    showCommands(panel);
    m_timers->follow();
    m_field->showChanges();  // it may be the other side's turn
    // While the thread is blocked nothing else would bring the changes to the display.
    if (m_gate->isClosed()) QCoreApplication::sendPostedEvents(this, QEvent::UpdateRequest);
}

void frmPlayGame::showReportRow(const BattlePanel& panel) {
    labelReport->showReport(QString::fromStdString(panel.labelReport));
    const QString score = QString::fromStdString(panel.score);
    labelScore->setText(QString::fromStdString(panel.labelScore));
    labelScore->setAccessibleName(score);
    labelScore->setToolTip(Qt::convertFromPlainText(score));
}

void frmPlayGame::showCommands(const BattlePanel& panel) {
    const bool wereEnabled = cmdShoot->isEnabled();
    if (wereEnabled && !panel.commandsEnabled) m_focusStaysOnShoot = cmdShoot->hasFocus();
    for (GlintButton* button : {cmdShoot, cmdQuit}) enable(*button, panel.commandsEnabled);
    for (QWidget* command :
         std::initializer_list<QWidget*>{labelGameSpeed, scrollGameSpeed, chkSound, chkTrajectory,
                                         chkMeteors, chkLightning, chkWind})
        command->setEnabled(panel.commandsEnabled);
    if (!wereEnabled && panel.commandsEnabled) moveFocusToTurn(panel.turn);
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

void frmPlayGame::holdInput() {
    m_gate->close();
}

void frmPlayGame::releaseInput() {
    m_gate->dropInputAndOpen();
}

int frmPlayGame::displayWidth() const {
    return screen()->size().width();
}

void frmPlayGame::queue(std::function<void()> task) {
    QMetaObject::invokeMethod(this, std::move(task), Qt::QueuedConnection);
}

void frmPlayGame::showSummary(SummaryKind kind) {
    if (kind == SummaryKind::Round)
        emit roundDecided();
    else
        emit setDecided();
}

void frmPlayGame::closeBattle() {
    m_timers->end();
    leave([this] { emit battleClosed(); });
}

}  // namespace skylob
