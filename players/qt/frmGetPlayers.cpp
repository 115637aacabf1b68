#include "players/qt/frmGetPlayers.h"

#include <QCheckBox>
#include <QFrame>
#include <QShortcut>
#include <QSignalBlocker>
#include <functional>
#include <utility>

#include "base/Settings.h"
#include "base/qt/QtSpokenWidget.h"
#include "base/qt/QtText.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtFormButtons.h"
#include "players/qt/QtChosenPlayer.h"
#include "players/qt/QtOptionGroup.h"
#include "players/qt/QtPlayerGrid.h"
#include "screen/Fade.h"
#include "screen/qt/modFadeInOut.h"

namespace skylob {

namespace {

constexpr QSize kScreen{784, 504};
constexpr QRect kGrid{16, 16, 580, 256};
constexpr PerSide<QRect> kChosen{{16, 284, 284, 84}, {312, 284, 284, 84}};
constexpr QRect kComputerPanel{608, 284, 160, 84}, kComputerBox{16, 18, 132, 48};
constexpr QRect kFirstOptions{16, 380, 184, 108};
constexpr int kNextOptions = 198;
/// The frames of the lower rows share the window's width and keep their height.
constexpr PerSide<QtPlaces::Follows> kChosenFollow{{0, 6, 3, 6}, {3, 6, 6, 6}};
constexpr QtPlaces::Follows kFirstOptionsFollow{0, 6, 2, 6}, kNextOptionsFollow{2, 0, 2, 0};

}  // namespace

frmGetPlayers::frmGetPlayers(const QtScreenPorts& screen, const frmGetPlayersPorts& ports)
    : QtScreen{{.name = QStringLiteral("frmGetPlayers"),
                .caption = QStringLiteral(" Skylob - Player List"),
                .size = kScreen,
                .mayGrow = true},
               screen},
      m_lobby{m_shared,
              {ports.file, ports.clock, ports.boxes, m_settings, ports.sounds, ports.links, *this}},
      grid{new QtPlayerGrid{board()}} {
    m_places.put(grid, kGrid, QtPlaces::kGrows);
    makeButtons();
    for (const int side : kSides) {
        frame[side] = new QtChosenPlayer{side, board()};
        frame[side]->setObjectName(QStringLiteral("frame(%1)").arg(side));
        m_places.put(frame[side], kChosen[side], kChosenFollow[side]);
    }
    makeComputerBox();
    makeOptions();
    connectControls();
    addShortcuts();
    setTabOrder();
    frmGetPlayers::showPairing(m_lobby.pairing());
}

void frmGetPlayers::makeButtons() {
    QtFormButtons buttons{objectName(), m_shapes, *board()};
    const auto make = [&](const char* name, const QRect& place, const QtPlaces::Follows& follows,
                          const QString& toolTip = {}) {
        GlintButton* const button = buttons.make(QLatin1String{name}, place, toolTip);
        m_places.put(button, place, follows);
        return button;
    };
    constexpr auto kUpper = QtPlaces::kUpperRight, kLower = QtPlaces::kLowerRight;
    cmdAdd = make("cmdAdd", {608, 16, 160, 40}, kUpper, toQt(Lobby::kAddToolTip));
    cmdModify = make("cmdModify", {608, 64, 160, 40}, kUpper, toQt(Lobby::kModifyToolTip));
    cmdDelete = make("cmdDelete", {608, 112, 160, 40}, kUpper,
                     QStringLiteral(" Delete the Highlighted Player "));
    cmdEmailFriend = make("cmdEmailFriend", {608, 168, 160, 48}, kUpper,
                          QStringLiteral(" Email a friend about this game! "));
    cmdHelp = make("cmdHelp", {608, 224, 160, 48}, kUpper, QStringLiteral(" Help <F1> "));
    cmdRematch = make("cmdRematch", {608, 380, 160, 48}, kLower,
                      QStringLiteral(" The same two play another set "));
    cmdQuit = make("cmdQuit", {608, 440, 160, 48}, kLower);
    cmdRematch->hide();
}

void frmGetPlayers::makeComputerBox() {
    auto* panel = new QFrame{board()};
    panel->setObjectName(QStringLiteral("strip"));
    m_places.put(panel, kComputerPanel, QtPlaces::kLowerRight);
    chkComputer = new QCheckBox{tr("Play the\nComputer!"), panel};
    chkComputer->setObjectName(QStringLiteral("chkComputer"));
    chkComputer->setGeometry(kComputerBox);
    setSpokenKey(*chkComputer, Qt::ALT | Qt::Key_C);
}

void frmGetPlayers::makeOptions() {
    optScreenSize = makeOptionGroup(QStringLiteral("optScreenSize"), tr("Playing field size"),
                                    {tr("Small"), tr("Normal"), tr("Large")}, 0);
    optRounds =
        makeOptionGroup(QStringLiteral("optRounds"), tr("Rounds per Set"),
                        {QStringLiteral("5"), QStringLiteral("10"), QStringLiteral("20")}, 1);
    optFormFade = makeOptionGroup(QStringLiteral("optFormFade"), tr("Form Fade effects"),
                                  {tr("Enabled"), tr("Disabled")}, 2);
}

QtOptionGroup* frmGetPlayers::makeOptionGroup(const QString& name, const QString& title,
                                              const QStringList& captions, int column) {
    auto* group = new QtOptionGroup{name, title, captions, board()};
    m_places.put(group, kFirstOptions.translated(column * kNextOptions, 0),
                 kFirstOptionsFollow + column * kNextOptionsFollow);
    return group;
}

void frmGetPlayers::connectControls() {
    connect(grid, &QtPlayerGrid::chosen, this,
            [this](const ListedPlayer& player) { m_lobby.grid_DblClick(player); });
    connect(frame[1], &QtChosenPlayer::nameDoubleClicked, this,
            [this] { m_lobby.labelPlayerName_DblClick(); });
    connect(chkComputer, &QCheckBox::toggled, this,
            [this](bool ticked) { m_lobby.chkComputer_Click(ticked); });
    connect(cmdAdd, &GlintButton::Click, this, [this] { m_lobby.cmdAdd_Click(); });
    connect(cmdModify, &GlintButton::Click, this,
            [this] { m_lobby.cmdModify_Click(grid->highlighted()); });
    connect(cmdDelete, &GlintButton::Click, this,
            [this] { m_lobby.cmdDelete_Click(grid->highlighted()); });
    connect(cmdEmailFriend, &GlintButton::Click, this, [this] { m_lobby.cmdEmailFriend_Click(); });
    connect(cmdHelp, &GlintButton::Click, this, &frmGetPlayers::helpWanted);
    connect(cmdRematch, &GlintButton::Click, this, [this] { m_lobby.cmdRematch_Click(); });
    connect(cmdQuit, &GlintButton::Click, this, [this] { m_lobby.cmdQuit_Click(); });
    connect(optScreenSize, &QtOptionGroup::chosen, this,
            [this](int index) { m_lobby.optScreenSize_Click(index); });
    connect(optRounds, &QtOptionGroup::chosen, this,
            [this](int index) { m_lobby.optRounds_Click(index); });
    connect(optFormFade, &QtOptionGroup::chosen, this,
            [this](int index) { m_lobby.optFormFade_Click(index); });
}

void frmGetPlayers::addShortcuts() {
    const auto onKey = [](QWidget* where, const QKeySequence& key, std::function<void()> action,
                          Qt::ShortcutContext context = Qt::WindowShortcut) {
        auto* shortcut = new QShortcut{key, where, nullptr, nullptr, context};
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, where, std::move(action));
    };
    onKey(this, Qt::Key_Escape, [this] { m_lobby.cmdQuit_Click(); });
    onKey(this, Qt::Key_F1, [this] { Form_KeyDown(); });
    onKey(this, Qt::ALT | Qt::Key_C, [this] { chkComputer->click(); });
    onKey(
        grid, Qt::Key_F2, [this] { m_lobby.cmdModify_Click(grid->highlighted()); },
        Qt::WidgetShortcut);
    onKey(
        grid, Qt::Key_Delete, [this] { m_lobby.cmdDelete_Click(grid->highlighted()); },
        Qt::WidgetShortcut);
}

void frmGetPlayers::setTabOrder() {
    QList<QWidget*> order{grid,
                          cmdAdd,
                          cmdModify,
                          cmdDelete,
                          cmdEmailFriend,
                          cmdHelp,
                          frame[1]->labelPlayerName(),
                          chkComputer};
    for (const QtOptionGroup* group : {optScreenSize, optRounds, optFormFade})
        order += group->buttons();
    order += {cmdRematch, cmdQuit};
    for (qsizetype i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
    grid->setFocus();
}

void frmGetPlayers::Form_KeyDown() {
    emit helpWanted();
}

/// Afterwards: an empty list brings up a box, which is to stand over the screen.
void frmGetPlayers::Form_Activate() {
    QMetaObject::invokeMethod(
        this, [this] { m_lobby.Form_Activate(); }, Qt::QueuedConnection);
}

void frmGetPlayers::askedToClose() {
    m_lobby.cmdQuit_Click();
}

void frmGetPlayers::boardResized() {
    m_places.grow(board()->size() - kScreen);
}

void frmGetPlayers::fillGrid(std::vector<PlayerRecord> records) {
    for (GlintButton* button : {cmdModify, cmdDelete}) button->setEnabled(!records.empty());
    grid->fill(std::move(records));
}

void frmGetPlayers::highlightRow(int row) {
    grid->highlight(row);
}

void frmGetPlayers::showPairing(const Pairing& pairing) {
    for (const int side : kSides) {
        frame[side]->setCaption(toQt(pairing.frameCaption(side)), tr("Player %1").arg(side));
        frame[side]->setName(QString::fromStdString(pairing.labelPlayerName(side)));
    }
    const QSignalBlocker quiet{chkComputer};
    chkComputer->setChecked(pairing.chkComputer());
}

void frmGetPlayers::offerRematch(const Pairing& pairing) {
    cmdRematch->setVisible(pairing.isComplete());
}

void frmGetPlayers::showOptions() {
    optScreenSize->check(m_shared.ScreenSize);
    optRounds->check(settings::readRoundsChoice(m_settings));
    optFormFade->check(m_shared.FadeStatus ? Lobby::kFadeEnabled : Lobby::kFadeDisabled);
}

bool frmGetPlayers::canFade() {
    return SetFormAlpha(*this, kOpaque, FadeDemand::Always, m_settings, m_shared.motion);
}

void frmGetPlayers::chooseSkillLevel() {
    emit computerChallenged();
}

void frmGetPlayers::leaveForBattle() {
    leave([this] { emit battleChosen(); });
}

void frmGetPlayers::leaveProgram() {
    leave([this] { emit programLeft(); });
}

}  // namespace skylob
