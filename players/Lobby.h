#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Clock.h"
#include "base/LinkOpener.h"
#include "base/MessageBoxes.h"
#include "base/SettingsStore.h"
#include "base/SoundPlayer.h"
#include "base/basSkylob.h"
#include "players/CommandGate.h"
#include "players/Pairing.h"
#include "players/PlayerFile.h"

namespace skylob {

/// The player list screen as its rules see it.
class LobbyView {
  public:
    virtual ~LobbyView() = default;

    /// Shows these records, in this order, and highlights the first of them.
    virtual void fillGrid(std::vector<PlayerRecord> records) = 0;

    /// Moves the highlight to the row, from 0, or to the last one if there are not so many.
    virtual void highlightRow(int row) = 0;

    virtual void showPairing(const Pairing& pairing) = 0;

    /// Offers these two a rematch, or nobody if the pairing is not complete.
    virtual void offerRematch(const Pairing& pairing) = 0;

    /// Brings the option buttons in line with the stored settings.
    virtual void showOptions() = 0;

    /// Whether this display can show a fading screen.
    virtual bool canFade() = 0;

    /// Asks for the computer's skill level; returns when the question is gone.
    virtual void chooseSkillLevel() = 0;

    /// The screen goes and the battle, or nothing, comes after it.
    virtual void leaveForBattle() = 0;
    virtual void leaveProgram() = 0;
};

struct LobbyPorts {
    PlayerFile& file;
    const Clock& clock;
    MessageBoxes& boxes;
    SettingsStore& settings;
    SoundPlayer& sounds;
    LinkOpener& links;
    LobbyView& view;
};

/// The player list screen's rules: who plays whom, the care of the list, the options. Errors of
/// the player file pass through all of it as FileError.
///
/// One command runs at a time: what comes in while one has a box or the choice of a skill level
/// open, or when the screen has been told to leave, does nothing but put the view right again.
class Lobby {
  public:
    static constexpr std::string_view kAddToolTip = " Add a New Player to the List ";
    static constexpr std::string_view kModifyToolTip = " Change the Highlighted Player's Name ";

    /// `shared` and everything in `ports` must outlive the lobby.
    Lobby(basSkylob& shared, const LobbyPorts& ports);

    /// Takes the options over from the settings and fills the grid; later calls do nothing.
    void Form_Activate();

    void grid_DblClick(const ListedPlayer& player);
    void labelPlayerName_DblClick();
    void chkComputer_Click(bool ticked);

    /// Has the two play again who have just finished a set, whoever else has been chosen; nothing
    /// unless both are in the list, or the second is the computer. They may have got other names
    /// meanwhile.
    void cmdRematch_Click();

    /// Without a highlighted player the last two do nothing.
    void cmdAdd_Click();
    void cmdModify_Click(const std::optional<ListedPlayer>& highlighted);
    void cmdDelete_Click(const std::optional<ListedPlayer>& highlighted);

    /// The indices of the buttons for fading.
    static constexpr int kFadeEnabled = 1, kFadeDisabled = 2;

    /// The index of the button, from 1: a size (kSmallScreen to kLargeScreen); 5, 10 or 20 rounds;
    /// kFadeEnabled or kFadeDisabled.
    void optScreenSize_Click(int index);
    void optRounds_Click(int index);
    void optFormFade_Click(int index);

    void cmdEmailFriend_Click();
    void cmdQuit_Click();

    const Pairing& pairing() const { return m_pairing; }

  private:
    void activate();
    void UpdateGrid();
    void fillGrid(std::vector<PlayerRecord> records);
    void showPairing();
    void offerRematch(const std::vector<PlayerRecord>& records);
    void StartBattle();

    void addPlayer();
    void renamePlayer(const ListedPlayer& player);
    void deletePlayer(const ListedPlayer& player);
    std::optional<std::string> askForName(std::string prompt, std::string_view toolTip,
                                          std::string name);
    void refuse(ListChange why);
    void refuseOutdated(const ListedPlayer& player);
    void chooseFade(bool wanted);
    void quit();

    basSkylob& m_shared;
    LobbyPorts m_ports;
    Pairing m_pairing;
    Pairing m_lastPairing;      ///< of the set just played; not complete if there was none
    bool m_mayRematch = false;  ///< both of it can play
    CommandGate m_gate;
    bool m_activated = false;
};

}  // namespace skylob
