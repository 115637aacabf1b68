#include "players/Lobby.h"

#include <algorithm>
#include <utility>

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
    if (shared.SetOver) m_lastPairing = Pairing{shared};
}

void Lobby::Form_Activate() {
    m_gate.run([this] {
        if (!std::exchange(m_activated, true)) activate();
    });
}

void Lobby::activate() {
    m_shared.ScreenSize = settings::readScreenSize(m_ports.settings);
    m_shared.NumRounds = settings::roundsForChoice(settings::readRoundsChoice(m_ports.settings));
    m_shared.FadeStatus = settings::readFadeStatus(m_ports.settings);
    m_ports.view.showOptions();
    showPairing();
    UpdateGrid();
}

void Lobby::UpdateGrid() {
    fillGrid(m_ports.file.readAll());
}

void Lobby::fillGrid(std::vector<PlayerRecord> records) {
    const bool empty = records.empty();
    offerRematch(records);
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
    m_gate.run([&] {
        m_pairing.choose(player.name());
        StartBattle();
    });
}

void Lobby::labelPlayerName_DblClick() {
    m_gate.run([this] {
        m_pairing.labelPlayerName_DblClick();
        showPairing();
    });
}

void Lobby::chkComputer_Click(bool ticked) {
    const bool done = m_gate.run([&] {
        m_pairing.chkComputer_Click(ticked);
        StartBattle();
    });
    if (!done) showPairing();
}

void Lobby::offerRematch(const std::vector<PlayerRecord>& records) {
    const auto canPlay = [&](int side) {
        const auto isHim = [&](const PlayerRecord& record) {
            return nameOf(record) == m_lastPairing.labelPlayerName(side);
        };
        return (side == 2 && m_lastPairing.chkComputer()) ||
               std::any_of(records.begin(), records.end(), isHim);
    };
    m_mayRematch = m_lastPairing.isComplete() && canPlay(1) && canPlay(2);
    m_ports.view.offerRematch(m_mayRematch ? m_lastPairing : Pairing{});
}

void Lobby::cmdRematch_Click() {
    m_gate.run([this] {
        if (!m_mayRematch) return;
        m_pairing = m_lastPairing;
        StartBattle();
    });
}

void Lobby::StartBattle() {
    showPairing();
    if (!m_pairing.isComplete()) return;
    for (const int side : kSides) m_shared.PlayerName[side] = m_pairing.labelPlayerName(side);
    if (m_pairing.chkComputer()) m_ports.view.chooseSkillLevel();
    m_ports.settings.save("ScreenSize", std::to_string(m_shared.ScreenSize));
    m_gate.shut();
    m_ports.view.leaveForBattle();
}

void Lobby::cmdAdd_Click() {
    m_gate.run([this] { addPlayer(); });
}

void Lobby::cmdModify_Click(const std::optional<ListedPlayer>& highlighted) {
    m_gate.run([&] {
        if (highlighted) renamePlayer(*highlighted);
    });
}

void Lobby::cmdDelete_Click(const std::optional<ListedPlayer>& highlighted) {
    m_gate.run([&] {
        if (highlighted) deletePlayer(*highlighted);
    });
}

std::optional<std::string> Lobby::askForName(std::string prompt, std::string_view toolTip,
                                             std::string name) {
    prompt += "\r\n\r\n(The entry will be limited to 20 characters)";
    const auto answer =
        m_ports.boxes.ask({std::string{toolTip.substr(1)}, std::move(prompt), std::move(name)});
    if (!answer) return std::nullopt;
    std::string entry = nameOnFile(*answer);
    if (entry.empty()) return std::nullopt;
    return entry;
}

void Lobby::addPlayer() {
    const auto name = askForName("Enter a Player's Name", kAddToolTip, {});
    if (!name) return;
    const ListChange change = m_ports.file.addPlayer(*name);
    if (change != ListChange::Done) return refuse(change);
    fillGrid(m_ports.file.records());
    m_ports.view.highlightRow(m_ports.file.PlayerCount - 1);  // whom the rest may be about
}

void Lobby::renamePlayer(const ListedPlayer& player) {
    const std::string before = player.name();
    const auto name =
        askForName("Change name from " + before + "\r\nto...", kModifyToolTip, before);
    if (!name) return;
    const ListChange change = m_ports.file.renamePlayer(player, *name);
    if (change == ListChange::Outdated) return refuseOutdated(player);
    if (change != ListChange::Done) return refuse(change);
    m_pairing.rename(before, *name);
    m_lastPairing.rename(before, *name);
    showPairing();
    fillGrid(m_ports.file.records());
    m_ports.view.highlightRow(player.recordNumber - 1);
}

void Lobby::deletePlayer(const ListedPlayer& player) {
    const std::string name = player.name();
    const MessageBox question{"Confirm",
                              "Are you sure you wish to remove " + name + " from the list?",
                              BoxIcon::Question, BoxButtons::YesNo, BoxAnswer::No};
    if (m_ports.boxes.show(question) != BoxAnswer::Yes) return;
    const ListChange change = m_ports.file.deletePlayer(player);
    if (change == ListChange::Outdated) return refuseOutdated(player);
    m_pairing.remove(name);
    m_lastPairing.remove(name);
    showPairing();
    if (m_ports.file.PlayerCount == 0)
        UpdateGrid();  // makes the file anew that went with the last player
    else
        fillGrid(m_ports.file.records());
    m_ports.view.highlightRow(player.recordNumber - 1);
}

void Lobby::refuse(ListChange why) {
    if (why == ListChange::NameTaken) {
        // Quirk "information called Error": the box has the icon of an information.
        m_ports.boxes.show({"Error", "That name is already in the Player List!"});
        return;
    }
    // Quirk "full list": one player more than 16 bits can count.
    m_ports.boxes.show(
        {"Full Player List", "There are " + std::to_string(PlayerFile::kMostPlayers) +
                                 " players in the Player List.\r\nNo more can be added."});
}

/// Somebody else has changed the file, and the player is not where the list shows it.
void Lobby::refuseOutdated(const ListedPlayer& player) {
    m_ports.boxes.show({"Changed Player List",
                        "Somebody else has changed the Player List, and " + player.name() +
                            "\r\nis not in the old place any more. Nothing has been done.\r\n\r\n"
                            "You will see the list as it is now."});
    UpdateGrid();
    m_ports.view.highlightRow(player.recordNumber - 1);
}

void Lobby::optScreenSize_Click(int index) {
    // Quirk "size stored late": when a battle starts, while rounds and fading are stored here.
    if (!m_gate.run([&] { m_shared.ScreenSize = index; })) m_ports.view.showOptions();
}

void Lobby::optRounds_Click(int index) {
    const bool done = m_gate.run([&] {
        m_shared.NumRounds = settings::roundsForChoice(index);
        m_ports.settings.save("NumRounds", std::to_string(index));
    });
    if (!done) m_ports.view.showOptions();
}

void Lobby::optFormFade_Click(int index) {
    if (!m_gate.run([&] { chooseFade(index == kFadeEnabled); })) m_ports.view.showOptions();
}

void Lobby::chooseFade(bool wanted) {
    m_shared.FadeStatus = wanted && m_ports.view.canFade();
    m_ports.settings.save("FadeStatus", m_shared.FadeStatus ? "True" : "False");
    if (m_shared.FadeStatus == wanted) return;
    m_ports.view.showOptions();
    m_ports.boxes.show(
        {std::string{kProgramTitle}, " This effect is not available on your operating system "});
}

void Lobby::cmdEmailFriend_Click() {
    m_gate.run([this] {
        std::string message{kRecommendation};
        message += kWebPage;
        message += kInvitation;
        OpenLink(LinkKind::Mail, message, m_ports.links, m_ports.boxes);
    });
}

void Lobby::cmdQuit_Click() {
    m_gate.run([this] { quit(); });
}

void Lobby::quit() {
    const MessageBox question{"Confirm", "Are you sure you wish to quit?", BoxIcon::Question,
                              BoxButtons::YesNo};
    if (m_ports.boxes.show(question) != BoxAnswer::Yes) return;
    // Quirk "rare goodbye": in the first sixth of a minute. Always, it would wear off.
    if (secondsOf(m_ports.clock.now()) < 10) m_ports.sounds.PlaySound("thatsall");
    m_gate.shut();
    m_ports.view.leaveProgram();
}

}  // namespace skylob
