#include "players/Lobby.h"

#include <gtest/gtest.h>

#include "players/Ranking.h"
#include "tests/support/Fakes.h"
#include "tests/support/PlayersRig.h"

namespace skylob::test {

static const std::string kAskNew = "ask Add a New Player to the List ";
static const std::string kAskRename = "ask Change the Highlighted Player's Name ";

struct RecordingLobbyView : LobbyView {
    explicit RecordingLobbyView(Log& events) : log{events} {}

    void fillGrid(std::vector<PlayerRecord> records) override {
        std::string names = "grid";
        for (const PlayerRecord& record : records) names += ' ' + nameOf(record);
        log.push_back(names);
    }
    void highlightRow(int row) override { log.push_back("highlight " + std::to_string(row)); }
    void showPairing(const Pairing& pairing) override {
        log.push_back(pairing.labelPlayerName(1) + '|' + pairing.labelPlayerName(2) + '|' +
                      std::string{pairing.frameCaption(1)} + '|' +
                      (pairing.chkComputer() ? "computer" : ""));
    }
    void showOptions() override { log.push_back("options"); }
    bool canFade() override { return fades; }
    void chooseSkillLevel() override {
        log.push_back("skill");
        if (onSkill) onSkill();
    }
    void leaveForBattle() override { log.push_back("battle"); }
    void leaveProgram() override { log.push_back("leave"); }

    Log& log;
    bool fades = false;
    std::function<void()> onSkill;
};

struct LobbyTest : testing::Test, PlayersRig {
    /// What has happened since the last look.
    Log events() { return std::exchange(log, {}); }

    Log log;
    HandSetClock clock;
    QueuedBoxes boxes{log};
    MemorySettings settings;
    RecordingSounds sounds{log};
    RecordingLinks links;
    RecordingLobbyView view{log};
    LobbyPorts ports{file, clock, boxes, settings, sounds, links, view};
    Lobby lobby{shared, ports};
};

static ListedPlayer row(int number, std::string_view name) {
    ListedPlayer player{number, {}};
    setName(player.record, name);
    return player;
}

TEST_F(LobbyTest, PairsByDoubleClicks) {
    const auto click = [this](const char* name) { lobby.grid_DblClick(row(1, name)); };
    const std::string nobody = "|| Player 1 |", computer = "|Computer| Player 1 |computer";
    const std::string onlyAnn = "Ann|| Double-click to UNselect |";
    click("Ann");
    click("Ann");
    EXPECT_EQ(events(), (Log{onlyAnn, onlyAnn}));
    lobby.labelPlayerName_DblClick();
    lobby.chkComputer_Click(true);
    lobby.labelPlayerName_DblClick();
    lobby.chkComputer_Click(false);
    click("Computer");
    EXPECT_EQ(events(), (Log{nobody, computer, computer, nobody, computer}));
    settings.save("ScreenSize", "3");
    lobby.optScreenSize_Click(1);
    EXPECT_EQ(settings.get("ScreenSize", ""), "3");
    click("Ann");
    EXPECT_EQ(events(),
              (Log{"Ann|Computer| Double-click to UNselect |computer", "skill", "battle"}));
    EXPECT_EQ(shared.PlayerName, (PerSide<std::string>{"Ann", "Computer"}));
    EXPECT_EQ(settings.get("ScreenSize", ""), "1");

    Lobby next{shared, ports};
    next.grid_DblClick(row(1, "Ann"));
    next.grid_DblClick(row(2, "ann"));  // two people need no skill level
    EXPECT_EQ(events(), (Log{onlyAnn, "Ann|ann| Double-click to UNselect |", "battle"}));
    EXPECT_EQ(shared.PlayerName, (PerSide<std::string>{"Ann", "ann"}));
}

TEST_F(LobbyTest, TakesOptionsOverOnceAndStoresThem) {
    const auto options = [this] {
        return std::to_string(shared.NumRounds) + " (" + settings.get("NumRounds", "") +
               "), size " + std::to_string(shared.ScreenSize) +
               (shared.FadeStatus ? ", fades" : ", no fading") + " (" +
               settings.get("FadeStatus", "") + ")";
    };
    settings.save("NumRounds", "3");
    settings.save("ScreenSize", "1");
    settings.save("FadeStatus", "True");
    boxes.answers = {BoxAnswer::Ok, BoxAnswer::Ok};
    lobby.Form_Activate();
    lobby.Form_Activate();
    EXPECT_EQ(events(), (Log{"options", "|| Player 1 |", "grid", "box Empty Player List"}));
    EXPECT_EQ(options(), "20 (3), size 1, fades (True)");
    lobby.optRounds_Click(1);
    EXPECT_EQ(options(), "5 (1), size 1, fades (True)");

    lobby.optFormFade_Click(1);
    EXPECT_EQ(events(), (Log{"options", "box Skylob"}));
    EXPECT_EQ(options(), "5 (1), size 1, no fading (False)");
    view.fades = true;
    lobby.optFormFade_Click(1);
    EXPECT_EQ(options(), "5 (1), size 1, fades (True)");
    lobby.optFormFade_Click(2);
    EXPECT_EQ(options(), "5 (1), size 1, no fading (False)");
}

TEST_F(LobbyTest, AddsOnlyNewNames) {
    boxes.entries = {"  Ann  ", std::nullopt, "   ", "ann", "Ann", "Twenty characters... and more"};
    boxes.answers = {BoxAnswer::Ok};
    for (int i = 0; i < 6; ++i) lobby.cmdAdd_Click();
    EXPECT_EQ(bytes(), ann + record("ann") + record("Twenty characters..."));
    EXPECT_EQ(boxes.asked[0],
              "Add a New Player to the List : Enter a Player's Name\r\n\r\n(The "
              "entry will be limited to 20 characters) []");
    EXPECT_EQ(boxes.shown[0], "Error: That name is already in the Player List!");
}

TEST_F(LobbyTest, RenamesAndDeletesWhoIsHighlighted) {
    put(ann + bob + cyd);
    lobby.cmdModify_Click(std::nullopt);
    lobby.cmdDelete_Click(std::nullopt);
    lobby.grid_DblClick(row(2, "Bob"));
    events();
    boxes.entries = {"Bob", "Bea"};
    boxes.answers = {BoxAnswer::Ok, BoxAnswer::No, BoxAnswer::Yes};
    for (int i = 0; i < 2; ++i) lobby.cmdModify_Click(row(2, "Bob"));
    EXPECT_EQ(boxes.asked[0],
              "Change the Highlighted Player's Name : Change name from Bob\r\nto...\r\n\r\n(The "
              "entry will be limited to 20 characters) [Bob]");
    EXPECT_EQ(events(),
              (Log{kAskRename, "box Error", kAskRename, "Bea|| Double-click to UNselect |",
                   "grid Ann Bea Cyd", "highlight 1"}));

    lobby.cmdDelete_Click(row(2, "Bea"));
    EXPECT_EQ(bytes().size(), 87U);
    EXPECT_EQ(boxes.shown[1],
              "Confirm: Are you sure you wish to remove Bea from the list? (?) yes/No");
    events();
    lobby.cmdDelete_Click(row(2, "Bea"));
    EXPECT_EQ(events(), (Log{"box Confirm", "|| Player 1 |", "grid Ann Cyd", "highlight 1"}));
    EXPECT_EQ(bytes(), ann + cyd);
}

TEST_F(LobbyTest, OpensAndReadsTheListOnceForEachCommand) {
    using Work = std::map<std::string, int>;
    const auto workOf = [this](const std::function<void()>& command) {
        files.done.clear();
        command();
        return files.done;
    };
    const auto onceAnd = [](const Work& more) {
        Work work{{"open Skylob.Data", 1}, {"read Skylob.Data", 1}};
        work.insert(more.begin(), more.end());
        return work;
    };
    const Work written = onceAnd({{"write Skylob.Data", 1}, {"sync Skylob.Data", 1}});
    const Work replaced = onceAnd({{"open TempFile.$$$", 1}, {"replace Skylob.Data", 1}});
    put(ann);
    boxes.entries = {"Bob", "Bob", "Bob", "Bea"};
    boxes.answers = {BoxAnswer::Ok, BoxAnswer::Ok, BoxAnswer::Yes, BoxAnswer::Yes, BoxAnswer::Ok};
    EXPECT_EQ(workOf([this] { lobby.Form_Activate(); }), onceAnd({}));
    EXPECT_EQ(workOf([this] { lobby.cmdAdd_Click(); }), written);
    EXPECT_EQ(workOf([this] { lobby.cmdAdd_Click(); }), onceAnd({}));
    EXPECT_EQ(workOf([this] { lobby.cmdModify_Click(row(1, "Ann")); }), onceAnd({}));
    EXPECT_EQ(workOf([this] { lobby.cmdModify_Click(row(1, "Ann")); }), written);
    EXPECT_EQ(workOf([this] { RecordSetResults(file, shared); }), replaced);
    EXPECT_EQ(workOf([this] { lobby.cmdDelete_Click(row(1, "Bea")); }), replaced);
    EXPECT_EQ(file.PlayerCount, 1);
    // With the last player the file goes, and filling the grid makes it anew.
    EXPECT_EQ(workOf([this] { lobby.cmdDelete_Click(row(1, "Bob")); }),
              (Work{{"open Skylob.Data", 2},
                    {"read Skylob.Data", 2},
                    {"remove Skylob.Data", 1},
                    {"remove TempFile.$$$", 1}}));
    EXPECT_EQ(folder.content(), "Skylob.Data ");
    EXPECT_EQ(log.back(), "highlight 0");
}

TEST_F(LobbyTest, RunsOneCommandAtATime) {
    put(ann + bob + cyd);
    const auto everything = [this] {
        lobby.Form_Activate();
        lobby.grid_DblClick(row(1, "Ann"));
        lobby.labelPlayerName_DblClick();
        lobby.chkComputer_Click(true);
        lobby.cmdAdd_Click();
        lobby.cmdModify_Click(row(1, "Ann"));
        lobby.cmdDelete_Click(row(1, "Ann"));
        lobby.optScreenSize_Click(1);
        lobby.optRounds_Click(1);
        lobby.optFormFade_Click(1);
        lobby.cmdEmailFriend_Click();
        lobby.cmdQuit_Click();
    };
    const auto with = [](const std::string& pairing, Log before, const Log& after) {
        before.insert(before.end(), {pairing, "options", "options", "options"});
        before.insert(before.end(), after.begin(), after.end());
        return before;
    };
    const std::string nobody = "|| Player 1 |";
    boxes.onShow = view.onSkill = everything;
    boxes.answers = {BoxAnswer::Yes};
    lobby.cmdDelete_Click(row(1, "Ann"));
    EXPECT_EQ(events(), with(nobody, {"box Confirm"}, {nobody, "grid Bob Cyd", "highlight 0"}));
    boxes.entries = {"Dan"};
    lobby.cmdAdd_Click();
    EXPECT_EQ(events(), with(nobody, {kAskNew}, {"grid Bob Cyd Dan"}));
    boxes.onShow = {};
    EXPECT_THROW(lobby.cmdQuit_Click(), std::logic_error);  // an error is no end of it all
    lobby.chkComputer_Click(true);
    events();
    lobby.grid_DblClick(row(2, "Cyd"));
    const std::string pair = "Cyd|Computer| Double-click to UNselect |computer";
    EXPECT_EQ(events(), with(pair, {pair, "skill"}, {"battle"}));
    everything();
    EXPECT_EQ(events(), with(pair, {}, {}));
    EXPECT_EQ(shared.NumRounds, 10);
    EXPECT_TRUE(links.targets.empty());

    Lobby leaving{shared, ports};
    boxes.answers = {BoxAnswer::Yes};
    leaving.cmdQuit_Click();
    leaving.cmdQuit_Click();
    EXPECT_EQ(events(), (Log{"box Confirm", "sound thatsall", "leave"}));
}

TEST_F(LobbyTest, TouchesNobodyButThePlayerItHasShown) {
    const std::pair<std::string, const char*> changes[] = {
        {bob + ann, "grid Bob Ann"}, {ann, "grid Ann"}, {ann + record(" Bob"), "grid Ann Bob"}};
    for (const auto& [changed, grid] : changes) {
        boxes.onShow = [this, list = changed] { put(list); };  // with the question on the screen
        put(ann + bob);
        boxes.entries = {"Bea"};
        boxes.answers = {BoxAnswer::Ok, BoxAnswer::Yes, BoxAnswer::Ok};
        lobby.cmdModify_Click(row(2, "Bob"));
        EXPECT_EQ(events(), (Log{kAskRename, "box Changed Player List", grid, "highlight 1"}));
        EXPECT_EQ(bytes(), changed);
        put(ann + bob);
        lobby.cmdDelete_Click(row(2, "Bob"));
        EXPECT_EQ(events(), (Log{"box Confirm", "box Changed Player List", grid, "highlight 1"}));
        EXPECT_EQ(bytes(), changed);
    }
    // Shown is the list as it is when the message has gone.
    boxes.onShow = [this] { put(bytes() == ann ? cyd : ann); };
    put(ann + bob);
    boxes.entries = {"Bea"};
    boxes.answers = {BoxAnswer::Ok};
    lobby.cmdModify_Click(row(2, "Bob"));
    EXPECT_EQ(events().at(2), "grid Cyd");
}

TEST_F(LobbyTest, RefusesOnePlayerTooMany) {
    std::string full;
    for (int i = 0; i < 32767; ++i) full += ann;
    put(full);
    boxes.entries = {"Bob"};
    boxes.answers = {BoxAnswer::Ok};
    lobby.cmdAdd_Click();
    EXPECT_EQ(events(), (Log{kAskNew, "box Full Player List"}));
    EXPECT_EQ(boxes.shown.at(0),
              "Full Player List: There are 32767 players in the Player List.\r\n"
              "No more can be added.");
    EXPECT_EQ(bytes(), full);
}

TEST_F(LobbyTest, SaysGoodbyeOnceInSixTimes) {
    using namespace std::chrono_literals;
    boxes.answers = {BoxAnswer::No, BoxAnswer::Yes, BoxAnswer::Yes};
    lobby.cmdQuit_Click();
    EXPECT_EQ(events(), Log{"box Confirm"});
    clock.time = DateTime{5min + 9999ms};
    lobby.cmdQuit_Click();
    clock.time = DateTime{5min + 10s};
    Lobby{shared, ports}.cmdQuit_Click();
    EXPECT_EQ(events(), (Log{"box Confirm", "sound thatsall", "leave", "box Confirm", "leave"}));
}

}  // namespace skylob::test
