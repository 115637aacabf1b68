#include "players/qt/frmGetPlayers.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <functional>
#include <utility>

#include "base/Settings.h"
#include "base/qt/QtText.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtFormButtons.h"
#include "players/qt/QtChosenPlayer.h"
#include "players/qt/QtPlayerGrid.h"
#include "screen/Fade.h"
#include "screen/qt/modFadeInOut.h"

namespace skylob {

namespace {

constexpr QSize kScreen{784, 504};
constexpr QRect kGrid{16, 16, 580, 256};
constexpr PerSide<QRect> kChosen{{16, 284, 284, 84}, {312, 284, 284, 84}};
constexpr QRect kComputerPanel{608, 284, 160, 84}, kComputerBox{16, 18, 132, 48};
constexpr QSize kOptionFrame{184, 108}, kOption{156, 24};
constexpr int kOptionTop = 380;
constexpr QPoint kFirstOption{14, 30};

/// Without its telling anybody.
void check(QButtonGroup& group, int id) {
    const QSignalBlocker quiet{group};
    group.button(id)->setChecked(true);
}

}  // namespace

frmGetPlayers::frmGetPlayers(const QtScreenPorts& screen, const frmGetPlayersPorts& ports)
    : QtScreen{{.name = QStringLiteral("frmGetPlayers"),
                .caption = QStringLiteral(" Skylob - Player List"),
                .size = kScreen},
               screen},
      m_lobby{m_shared,
              {ports.file, ports.clock, ports.boxes, m_settings, ports.sounds, ports.links, *this}},
      grid{new QtPlayerGrid{this}} {
    grid->setGeometry(kGrid);
    makeButtons();
    for (const int side : {1, 2}) {
        frame[side] = new QtChosenPlayer{side, this};
        frame[side]->setObjectName(QStringLiteral("frame(%1)").arg(side));
        frame[side]->setGeometry(kChosen[side]);
    }
    makeComputerBox();
    makeOptions();
    connectControls();
    addShortcuts();
    setTabOrder();
    frmGetPlayers::showPairing(m_lobby.pairing());
}

void frmGetPlayers::makeButtons() {
    QtFormButtons buttons{objectName(), m_shapes, *this};
    cmdAdd = buttons.make(QStringLiteral("cmdAdd"), {608, 16, 160, 40}, toQt(Lobby::kAddToolTip));
    cmdModify =
        buttons.make(QStringLiteral("cmdModify"), {608, 64, 160, 40}, toQt(Lobby::kModifyToolTip));
    cmdDelete = buttons.make(QStringLiteral("cmdDelete"), {608, 112, 160, 40},
                             QStringLiteral(" Delete the Highlighted Player "));
    cmdEmailFriend = buttons.make(QStringLiteral("cmdEmailFriend"), {608, 168, 160, 48},
                                  QStringLiteral(" Email a friend about this game! "));
    cmdHelp =
        buttons.make(QStringLiteral("cmdHelp"), {608, 224, 160, 48}, QStringLiteral(" Help <F1> "));
    cmdQuit = buttons.make(QStringLiteral("cmdQuit"), {608, 440, 160, 48});
}

void frmGetPlayers::makeComputerBox() {
    auto* panel = new QFrame{this};
    panel->setObjectName(QStringLiteral("strip"));
    panel->setGeometry(kComputerPanel);
    chkComputer = new QCheckBox{tr("Play the\nComputer!"), panel};
    chkComputer->setObjectName(QStringLiteral("chkComputer"));
    chkComputer->setGeometry(kComputerBox);
}

void frmGetPlayers::makeOptions() {
    optScreenSize = makeOptionGroup(QStringLiteral("optScreenSize"), tr("Playing field size"),
                                    {tr("Small"), tr("Normal"), tr("Large")}, 16);
    optRounds =
        makeOptionGroup(QStringLiteral("optRounds"), tr("Rounds per Set"),
                        {QStringLiteral("5"), QStringLiteral("10"), QStringLiteral("20")}, 214);
    optFormFade = makeOptionGroup(QStringLiteral("optFormFade"), tr("Form Fade effects"),
                                  {tr("Enabled"), tr("Disabled")}, 412);
}

QButtonGroup* frmGetPlayers::makeOptionGroup(const QString& name, const QString& title,
                                             const QStringList& captions, int left) {
    auto* box = new QGroupBox{title, this};
    box->setGeometry({{left, kOptionTop}, kOptionFrame});
    auto* group = new QButtonGroup{box};
    for (int i = 0; i < captions.size(); ++i) {
        const int index = i + 1;
        auto* button = new QRadioButton{captions[i], box};
        button->setObjectName(QStringLiteral("%1(%2)").arg(name).arg(index));
        button->setGeometry({kFirstOption + QPoint{0, i * kOption.height()}, kOption});
        group->addButton(button, index);
    }
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
    connect(cmdQuit, &GlintButton::Click, this, [this] { m_lobby.cmdQuit_Click(); });
    connect(optScreenSize, &QButtonGroup::idClicked, this,
            [this](int index) { m_lobby.optScreenSize_Click(index); });
    connect(optRounds, &QButtonGroup::idClicked, this,
            [this](int index) { m_lobby.optRounds_Click(index); });
    connect(optFormFade, &QButtonGroup::idClicked, this,
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
    for (const QButtonGroup* group : {optScreenSize, optRounds, optFormFade})
        for (QAbstractButton* option : group->buttons()) order.append(option);
    order.append(cmdQuit);
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

void frmGetPlayers::fillGrid(std::vector<PlayerRecord> records) {
    grid->fill(std::move(records));
}

void frmGetPlayers::highlightRow(int row) {
    grid->highlight(row);
}

void frmGetPlayers::showPairing(const Pairing& pairing) {
    for (const int side : kSides) {
        frame[side]->setCaption(toQt(pairing.frameCaption(side)));
        frame[side]->setName(QString::fromStdString(pairing.labelPlayerName(side)));
    }
    const QSignalBlocker quiet{chkComputer};
    chkComputer->setChecked(pairing.chkComputer());
}

void frmGetPlayers::showOptions() {
    check(*optScreenSize, m_shared.ScreenSize);
    check(*optRounds, settings::readRoundsChoice(m_settings));
    check(*optFormFade, m_shared.FadeStatus ? Lobby::kFadeEnabled : Lobby::kFadeDisabled);
}

bool frmGetPlayers::canFade() {
    return SetFormAlpha(*this, kOpaque, FadeDemand::Always, m_settings);
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
