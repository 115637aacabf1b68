#pragma once

#include <QWidget>
#include <functional>

#include "look/qt/QtShapes.h"
#include "players/Lobby.h"

class QButtonGroup;
class QCheckBox;

namespace skylob {

class GlintButton;
class QtChosenPlayer;
class QtPlayerGrid;
class QtScreenFade;

/// What the player list screen needs beside the shared state; all of it must outlive the screen.
struct frmGetPlayersPorts {
    PlayerFile& file;
    const Clock& clock;
    MessageBoxes& boxes;
    SettingsStore& settings;
    SoundPlayer& sounds;
    LinkOpener& links;
    const QtShapes& shapes;
    /// Asks for the computer's skill level and returns when that has been closed.
    std::function<void()> chooseSkillLevel;
};

/// The player list screen, the program's home: the list, who plays whom, and the options. Widgets
/// only report what the user does to the Lobby and show what it says.
class frmGetPlayers : public QWidget, private LobbyView {
    Q_OBJECT

  public:
    frmGetPlayers(basSkylob& shared, const frmGetPlayersPorts& ports);

  signals:
    /// The user wants to read the manual.
    void helpWanted();

    /// Two players are to fight, or the user has had enough; the screen is hidden. Receivers must
    /// not delete it before the present event has been handled.
    void battleChosen();
    void programLeft();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void fillGrid(std::vector<PlayerRecord> records) override;
    void highlightRow(int row) override;
    void showPairing(const Pairing& pairing) override;
    void showOptions() override;
    bool canFade() override;
    void chooseSkillLevel() override;
    void leaveForBattle() override;
    void leaveProgram() override;

    void makeButtons();
    void makeComputerBox();
    void makeOptions();
    QButtonGroup* makeOptionGroup(const QString& name, const QString& title,
                                  const QStringList& captions, int left);
    void connectControls();
    void addShortcuts();
    void setTabOrder();
    void Form_Activate();
    void Form_KeyDown();  ///< F1

    basSkylob& m_shared;
    frmGetPlayersPorts m_ports;
    Lobby m_lobby;
    QtScreenFade* m_fade;
    QtPlayerGrid* grid;
    GlintButton *cmdAdd, *cmdModify, *cmdDelete, *cmdEmailFriend, *cmdHelp, *cmdQuit;
    PerSide<QtChosenPlayer*> frame;
    QCheckBox* chkComputer;
    QButtonGroup *optScreenSize, *optRounds, *optFormFade;
};

}  // namespace skylob
