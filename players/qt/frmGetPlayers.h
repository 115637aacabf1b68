#pragma once

#include "players/Lobby.h"
#include "players/qt/QtPlaces.h"
#include "screen/qt/QtScreen.h"

class QCheckBox;

namespace skylob {

class GlintButton;
class QtChosenPlayer;
class QtOptionGroup;
class QtPlayerGrid;

/// What the player list screen needs besides; all of it must outlive the screen.
struct frmGetPlayersPorts {
    PlayerFile& file;
    const Clock& clock;
    MessageBoxes& boxes;
    SoundPlayer& sounds;
    LinkOpener& links;
};

/// The player list screen, the program's home: the list, who plays whom, and the options. Widgets
/// only report what the user does to the Lobby and show what it says.
class frmGetPlayers : public QtScreen, private LobbyView {
    Q_OBJECT

  public:
    frmGetPlayers(const QtScreenPorts& screen, const frmGetPlayersPorts& ports);

  signals:
    /// The user wants to read the manual.
    void helpWanted();

    /// Somebody is to fight the computer. The receiver is to ask for the skill level, and to return
    /// when that is over.
    void computerChallenged();

    /// Two players are to fight, or the user has had enough; the screen is hidden. Receivers must
    /// not delete it before the present event has been handled.
    void battleChosen();
    void programLeft();

  protected:
    void boardResized() override;

  private:
    void Form_Activate() override;
    void askedToClose() override;

    void fillGrid(std::vector<PlayerRecord> records) override;
    void highlightRow(int row) override;
    void showPairing(const Pairing& pairing) override;
    void offerRematch(const Pairing& pairing) override;
    void showOptions() override;
    bool canFade() override;
    void chooseSkillLevel() override;
    void leaveForBattle() override;
    void leaveProgram() override;

    void makeButtons();
    void makeComputerBox();
    void makeOptions();
    QtOptionGroup* makeOptionGroup(const QString& name, const QString& title,
                                   const QStringList& captions, int column);
    void connectControls();
    void addShortcuts();
    void setTabOrder();
    void Form_KeyDown();  ///< F1

    Lobby m_lobby;
    QtPlaces m_places;
    QtPlayerGrid* grid;
    GlintButton *cmdAdd, *cmdModify, *cmdDelete, *cmdEmailFriend, *cmdHelp, *cmdRematch, *cmdQuit;
    PerSide<QtChosenPlayer*> frame;
    QCheckBox* chkComputer;
    QtOptionGroup *optScreenSize, *optRounds, *optFormFade;
};

}  // namespace skylob
