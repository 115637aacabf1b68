#include "players/Lobby.h"

#include "base/OpenLink.h"
#include "base/Release.h"
#include "base/Settings.h"

namespace skylob {

namespace {

// Sent as it stands: a mail address's query has blanks and line breaks as hexadecimal codes.
constexpr std::string_view kRecommendation =
    "?subject=Fancy%20a%20duel%3F%20Try%20Skylob"
    "&body=Hi%21%0D%0A%0D%0A"
    "I%20have%20found%20a%20little%20artillery%20game%20that%20I%20think%20you%20will%20like.%20"
    "Two%20guns%2C%20one%20mountain%2C%20plenty%20of%20wind%2C%20and%20a%20computer%20that%20"
    "cannot%20keep%20its%20remarks%20to%20itself.%0D%0A%0D%0A"
    "It%20is%20called%20Skylob%2C%20and%20you%20can%20download%20it%20here%3A%0D%0A%0D%0A"
    "http%3A%2F%2F";
constexpr std::string_view kInvitation = "%0D%0A%0D%0ASee%20you%20on%20the%20battlefield%21";

}  // namespace

Lobby::Lobby(basSkylob& shared, const LobbyPorts& ports) : m_shared{shared}, m_ports{ports} {
}

void Lobby::Form_Activate() {
    const CommandGate::Pass pass{m_gate};
    if (!pass || m_activated) return;
    m_activated = true;
    m_shared.ScreenSize = settings::readScreenSize(m_ports.settings);
    m_shared.NumRounds = settings::roundsForChoice(settings::readRoundsChoice(m_ports.settings));
    m_shared.FadeStatus = settings::readFadeStatus(m_ports.settings);
    m_ports.view.showOptions();
    showPairing();
    UpdateGrid();
}

void Lobby::UpdateGrid() {
    auto records = m_ports.file.readAll();
    const bool empty = records.empty();
    m_ports.view.fillGrid(std::move(records));
    if (!empty) return;
    m_ports.boxes.show({"Empty Player List",
                        "There are currently no players in the Player List.\r\n\r\n"
                        "Please add players to the list, and then select them\r\n"
                        "by double-clicking on the players' names."});
}

void Lobby::showPairing() {
    m_ports.view.showPairing(m_pairing);
}

void Lobby::grid_DblClick(const ListedPlayer& player) {
    const CommandGate::Pass pass{m_gate};
    if (!pass) return;
    m_pairing.choose(player.name());
    StartBattle();
}

void Lobby::labelPlayerName_DblClick() {
    const CommandGate::Pass pass{m_gate};
    if (!pass) return;
    m_pairing.labelPlayerName_DblClick();
    showPairing();
}

void Lobby::chkComputer_Click(bool ticked) {
    const CommandGate::Pass pass{m_gate};
    if (!pass) return showPairing();
    m_pairing.chkComputer_Click(ticked);
    StartBattle();
}

void Lobby::StartBattle() {
    showPairing();
    if (!m_pairing.isComplete()) return;
    for (const int side : {1, 2}) m_shared.PlayerName[side] = m_pairing.labelPlayerName(side);
    if (m_pairing.chkComputer()) m_ports.view.chooseSkillLevel();
    m_ports.settings.save("ScreenSize", std::to_string(m_shared.ScreenSize));
    m_gate.shut();
    m_ports.view.leaveForBattle();
}

std::optional<std::string> Lobby::askForName(std::string prompt, std::string_view toolTip,
                                             std::string name) {
    prompt += "\r\n\r\n(The entry will be limited to 20 characters)";
    const auto answer =
        m_ports.boxes.ask({std::string{toolTip.substr(1)}, std::move(prompt), std::move(name)});
    if (!answer) return std::nullopt;
    std::string entry = nameOnFile(*answer);
    if (entry.empty()) return std::nullopt;
    if (m_ports.file.NameAlreadyExists(entry)) {
        m_ports.boxes.show({"Error", "That name is already in the Player List!"});
        return std::nullopt;
    }
    return entry;
}

void Lobby::cmdAdd_Click() {
    const CommandGate::Pass pass{m_gate};
    if (!pass) return;
    const auto name = askForName("Enter a Player's Name", kAddToolTip, {});
    if (!name) return;
    if (!m_ports.file.addPlayer(*name)) {
        m_ports.boxes.show(
            {"Full Player List", "There are " + std::to_string(PlayerFile::kMostPlayers) +
                                     " players in the Player List.\r\nNo more can be added."});
        return;
    }
    UpdateGrid();
}

void Lobby::cmdModify_Click(const std::optional<ListedPlayer>& highlighted) {
    const CommandGate::Pass pass{m_gate};
    if (!pass || !highlighted) return;
    const std::string before = highlighted->name();
    const auto name =
        askForName("Change name from " + before + "\r\nto...", kModifyToolTip, before);
    if (!name) return;
    if (!m_ports.file.renamePlayer(*highlighted, *name)) return refuseOutdated(*highlighted);
    m_pairing.rename(before, *name);
    showPairing();
    updateGridAt(*highlighted);
}

void Lobby::cmdDelete_Click(const std::optional<ListedPlayer>& highlighted) {
    const CommandGate::Pass pass{m_gate};
    if (!pass || !highlighted) return;
    const std::string name = highlighted->name();
    const MessageBox question{"Confirm",
                              "Are you sure you wish to remove " + name + " from the list?",
                              BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::No};
    if (m_ports.boxes.show(question) != BoxAnswer::Yes) return;
    if (!m_ports.file.deletePlayer(*highlighted)) return refuseOutdated(*highlighted);
    m_pairing.remove(name);
    showPairing();
    updateGridAt(*highlighted);
}

/// Fills the grid and leaves the highlight in the row where that player was.
void Lobby::updateGridAt(const ListedPlayer& player) {
    UpdateGrid();
    m_ports.view.highlightRow(player.recordNumber - 1);
}

/// Somebody else has changed the file, and the player is not where the list shows it.
void Lobby::refuseOutdated(const ListedPlayer& player) {
    m_ports.boxes.show({"Changed Player List",
                        "Somebody else has changed the Player List, and " + player.name() +
                            "\r\nis not in the old place any more. Nothing has been done.\r\n\r\n"
                            "You will see the list as it is now."});
    updateGridAt(player);
}

void Lobby::optScreenSize_Click(int index) {
    const CommandGate::Pass pass{m_gate};
    if (!pass) return m_ports.view.showOptions();
    m_shared.ScreenSize = index;  // stored when a battle starts
}

void Lobby::optRounds_Click(int index) {
    const CommandGate::Pass pass{m_gate};
    if (!pass) return m_ports.view.showOptions();
    m_shared.NumRounds = settings::roundsForChoice(index);
    m_ports.settings.save("NumRounds", std::to_string(index));
}

void Lobby::optFormFade_Click(int index) {
    const CommandGate::Pass pass{m_gate};
    if (!pass) return m_ports.view.showOptions();
    constexpr int kEnabled = 1;
    const bool wanted = index == kEnabled;
    m_shared.FadeStatus = wanted && m_ports.view.canFade();
    m_ports.settings.save("FadeStatus", m_shared.FadeStatus ? "True" : "False");
    if (m_shared.FadeStatus == wanted) return;
    m_ports.view.showOptions();
    m_ports.boxes.show(
        {std::string{kProgramTitle}, " This effect is not available on your operating system "});
}

void Lobby::cmdEmailFriend_Click() {
    const CommandGate::Pass pass{m_gate};
    if (!pass) return;
    std::string message{kRecommendation};
    message += kWebPage;
    message += kInvitation;
    OpenLink(LinkKind::Mail, message, m_ports.links, m_ports.boxes);
}

void Lobby::cmdQuit_Click() {
    const CommandGate::Pass pass{m_gate};
    if (!pass) return;
    const MessageBox question{"Confirm", "Are you sure you wish to quit?", BoxIcon::Question,
                              BoxButtons::YesNo};
    if (m_ports.boxes.show(question) != BoxAnswer::Yes) return;
    if (secondsOf(m_ports.clock.now()) < 10) m_ports.sounds.PlaySound("thatsall");
    m_gate.shut();
    m_ports.view.leaveProgram();
}

}  // namespace skylob
