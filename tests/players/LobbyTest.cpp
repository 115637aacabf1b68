#include "players/Lobby.h"

#include <gtest/gtest.h>

#include "players/Ranking.h"
#include "tests/support/PlayersRig.h"

namespace skylob::test {

static const std::string kAskNew = "ask Add a New Player to the List ";
static const std::string kAskRename = "ask Change the Highlighted Player's Name ";

struct LobbyTest : testing::Test, PlayersRig, LobbyView {
    void fillGrid(std::vector<PlayerRecord> records) override {
        log.push_back("grid");
        for (const PlayerRecord& record : records) log.back() += ' ' + nameOf(record);
    }
    void highlightRow(int row) override { log.push_back("highlight " + std::to_string(row)); }
    void showPairing(const Pairing& pairing) override {
        log.push_back(pairing.labelPlayerName(1) + '|' + pairing.labelPlayerName(2) + '|');
        log.back().append(pairing.frameCaption(1)) += pairing.chkComputer() ? "|computer" : "|";
    }
    void offerRematch(const Pairing& pairing) override {
        rematch = pairing.labelPlayerName(1) + '|' + pairing.labelPlayerName(2);
    }
    void showOptions() override { log.push_back("options"); }
    bool canFade() override { return fades; }
    void chooseSkillLevel() override {
        log.push_back("skill");
        if (boxes.onShow) boxes.onShow();
    }
    void leaveForBattle() override { log.push_back("battle"); }
    void leaveProgram() override { log.push_back("leave"); }

    static ListedPlayer row(int number, const char* name) {
        return {number, unpackRecord(record(name))};
    }

    bool fades = false;
    std::string rematch = "not asked";
    LobbyPorts ports{file, clock, boxes, settings, sounds, links, *this};
    Lobby lobby{shared, ports};
};

TEST_F(LobbyTest, PairsByDoubleClicks) {
    const std::string nobody = "|| Player 1 |", computer = "|Computer| Player 1 |computer";
    const std::string onlyAnn = "Ann|| Double-click to UNselect |";
    for (int i = 0; i < 2; ++i) lobby.grid_DblClick(row(1, "Ann"));
    lobby.labelPlayerName_DblClick();
    lobby.chkComputer_Click(true);
    lobby.labelPlayerName_DblClick();
    lobby.chkComputer_Click(false);
    lobby.grid_DblClick(row(1, "Computer"));
    EXPECT_EQ(events(), (Log{onlyAnn, onlyAnn, nobody, computer, computer, nobody, computer}));
    settings.save("ScreenSize", "3");
    lobby.optScreenSize_Click(1);
    EXPECT_EQ(settings.get("ScreenSize", ""), "3");
    lobby.grid_DblClick(row(1, "Ann"));
    EXPECT_EQ(events(),
              (Log{"Ann|Computer| Double-click to UNselect |computer", "skill", "battle"}));
    EXPECT_EQ(shared.PlayerName, (PerSide<std::string>{"Ann", "Computer"}));
    EXPECT_EQ(settings.get("ScreenSize", ""), "1");
    Lobby next{shared, ports};  // two people need no skill level
    for (const char* name : {"Ann", "ann"}) next.grid_DblClick(row(1, name));
    EXPECT_EQ(events(), (Log{onlyAnn, "Ann|ann| Double-click to UNselect |", "battle"}));
    EXPECT_EQ(shared.PlayerName, (PerSide<std::string>{"Ann", "ann"}));
}

TEST_F(LobbyTest, TakesOptionsOverOnceAndStoresThem) {
    const auto options = [this] {
        return std::to_string(shared.NumRounds) + " (" + settings.get("NumRounds", "") +
               "), size " + std::to_string(shared.ScreenSize) + ", fades " +
               std::to_string(shared.FadeStatus) + " (" + settings.get("FadeStatus", "") + ")";
    };
    settings.save("NumRounds", "3");
    settings.save("ScreenSize", "1");
    settings.save("FadeStatus", "True");
    boxes.answers = {BoxAnswer::Ok, BoxAnswer::Ok};
    for (int i = 0; i < 2; ++i) lobby.Form_Activate();
    EXPECT_EQ(events(), (Log{"options", "|| Player 1 |", "grid", "box Empty Player List"}));
    EXPECT_EQ(options(), "20 (3), size 1, fades 1 (True)");
    lobby.optRounds_Click(1);
    EXPECT_EQ(options(), "5 (1), size 1, fades 1 (True)");
    lobby.optFormFade_Click(1);
    EXPECT_EQ(events(), (Log{"options", "box Skylob"}));
    EXPECT_EQ(options(), "5 (1), size 1, fades 0 (False)");
    fades = true;
    lobby.optFormFade_Click(1);
    EXPECT_EQ(options(), "5 (1), size 1, fades 1 (True)");
    lobby.optFormFade_Click(2);
    EXPECT_EQ(options(), "5 (1), size 1, fades 0 (False)");
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

TEST_F(LobbyTest, PutsNobodyInTheComputersPlaceByAName) {
    put(ann + bob);
    boxes.entries = {"Computer"};
    lobby.grid_DblClick(row(1, "Ann"));
    lobby.cmdModify_Click(row(1, "Ann"));
    EXPECT_EQ(events()[2], "|| Player 1 |");
    lobby.grid_DblClick(row(1, "Computer"));
    EXPECT_EQ(events(), Log{"|Computer| Player 1 |computer"});
}

TEST_F(LobbyTest, OpensAndReadsTheListOnceForEachCommand) {
    const std::string once = "open Skylob.Data\nread Skylob.Data\n";
    const std::string written = once + "write Skylob.Data\nsync Skylob.Data\n";
    const std::string replaced = once + "open TempFile.$$$\nreplace Skylob.Data\n";
    const std::pair<std::function<void()>, std::string> commands[] = {
        {[this] { lobby.Form_Activate(); }, once},
        {[this] { lobby.cmdAdd_Click(); }, written},
        {[this] { lobby.cmdAdd_Click(); }, once},
        {[this] { lobby.cmdModify_Click(row(1, "Ann")); }, once},
        {[this] { lobby.cmdModify_Click(row(1, "Ann")); }, written},
        {[this] { RecordSetResults(file, shared); }, replaced},
        {[this] { lobby.cmdDelete_Click(row(1, "Bea")); }, replaced},
        {[this] { EXPECT_EQ(file.PlayerCount, 1); }, ""},
        // With the last player the file goes, and filling the grid makes it anew.
        {[this] { lobby.cmdDelete_Click(row(1, "Bob")); },
         once + "remove TempFile.$$$\nremove Skylob.Data\n" + once}};
    put(ann);
    boxes.entries = {"Bob", "Bob", "Bob", "Bea"};
    boxes.answers = {BoxAnswer::Ok, BoxAnswer::Ok, BoxAnswer::Yes, BoxAnswer::Yes, BoxAnswer::Ok};
    for (const auto& [command, work] : commands) {
        files.done.clear();
        command();
        EXPECT_EQ(files.done, work);
    }
    EXPECT_EQ(folder.content(), "Skylob.Data ");
    EXPECT_EQ(log.back(), "highlight 0");
}

TEST_F(LobbyTest, RecommendsTheGameByMail) {
    lobby.cmdEmailFriend_Click();
    const std::string mail = links.targets.at(0);
    EXPECT_EQ(mail.find("mailto:?subject=Fancy%20a%20duel%3F"), 0u) << mail;
    EXPECT_NE(mail.find("http%3A%2F%2Fwww.example.org/skylob%0D%0A"), std::string::npos) << mail;
}

TEST_F(LobbyTest, RunsOneCommandAtATime) {
    put(ann + bob + cyd);
    const auto everything = [this] {
        lobby.grid_DblClick(row(1, "Ann"));
        lobby.chkComputer_Click(true);
        for (const auto command :
             {&Lobby::Form_Activate, &Lobby::labelPlayerName_DblClick, &Lobby::cmdAdd_Click,
              &Lobby::cmdEmailFriend_Click, &Lobby::cmdQuit_Click})
            (lobby.*command)();
        for (const auto command : {&Lobby::cmdModify_Click, &Lobby::cmdDelete_Click})
            (lobby.*command)(row(1, "Ann"));
        for (const auto option :
             {&Lobby::optScreenSize_Click, &Lobby::optRounds_Click, &Lobby::optFormFade_Click})
            (lobby.*option)(1);
    };
    const std::string o = "options", nobody = "|| Player 1 |";
    boxes.onShow = everything;
    boxes.answers = {BoxAnswer::Yes};
    lobby.cmdDelete_Click(row(1, "Ann"));
    EXPECT_EQ(events(),
              (Log{"box Confirm", nobody, o, o, o, nobody, "grid Bob Cyd", "highlight 0"}));
    boxes.entries = {"Dan"};
    lobby.cmdAdd_Click();
    EXPECT_EQ(events(), (Log{kAskNew, nobody, o, o, o, "grid Bob Cyd Dan", "highlight 2"}));
    EXPECT_THROW(lobby.cmdQuit_Click(), std::logic_error);  // an error is no end of it all
    lobby.chkComputer_Click(true);
    events();
    lobby.grid_DblClick(row(2, "Cyd"));
    const std::string pair = "Cyd|Computer| Double-click to UNselect |computer";
    EXPECT_EQ(events(), (Log{pair, "skill", pair, o, o, o, "battle"}));
    std::exchange(boxes.onShow, {})();
    EXPECT_EQ(events(), (Log{pair, o, o, o}));
    EXPECT_EQ(shared.NumRounds, 10);
    EXPECT_TRUE(links.targets.empty());

    Lobby leaving{shared, ports};
    boxes.answers = {BoxAnswer::Yes};
    for (int i = 0; i < 2; ++i) leaving.cmdQuit_Click();
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

TEST_F(LobbyTest, OffersARematchToWhoCanPlayAgain) {
    const struct {
        PerSide<std::string> names;
        bool setOver;
        std::string list, offered;
    } cases[] = {{{"Ann", "Bob"}, true, bob + cyd + ann, "Ann|Bob"},
                 {{"Ann", "Bob"}, false, ann + bob, "|"},
                 {{"Ann", "Bob"}, true, ann + cyd, "|"},
                 {{"Cyd", "Bob"}, true, ann + bob, "|"},
                 {{"Ann", "Computer"}, true, ann, "Ann|Computer"}};
    for (const auto& [names, setOver, list, offered] : cases) {
        put(list);
        shared.PlayerName = names;
        shared.SetOver = setOver;
        Lobby next{shared, ports};
        next.cmdRematch_Click();
        next.Form_Activate();
        EXPECT_EQ(rematch, offered);
        events();
        next.cmdRematch_Click();
        const bool isOffered = offered != "|";
        EXPECT_EQ(!log.empty() && log.back() == "battle", isOffered);
        EXPECT_EQ(std::count(log.begin(), log.end(), "skill"), offered == "Ann|Computer");
    }
}

TEST_F(LobbyTest, KnowsWhoMayPlayAgainByTheirPresentNames) {
    put(ann + bob + cyd);
    shared.PlayerName = {"Ann", "Bob"};
    shared.SetOver = true;
    Lobby next{shared, ports};
    next.Form_Activate();
    boxes.entries = {"Bea"};
    next.cmdModify_Click(row(2, "Bob"));
    next.grid_DblClick(row(3, "Cyd"));
    EXPECT_EQ(rematch, "Ann|Bea");
    next.cmdRematch_Click();
    EXPECT_EQ(shared.PlayerName, (PerSide<std::string>{"Ann", "Bea"}));
    Lobby last{shared, ports};
    last.Form_Activate();
    boxes.answers = {BoxAnswer::Yes};
    last.cmdDelete_Click(row(1, "Ann"));
    EXPECT_EQ(rematch, "|");
}

TEST_F(LobbyTest, RefusesOnePlayerTooMany) {
    const std::string full(29 * 32767, 'x');
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
