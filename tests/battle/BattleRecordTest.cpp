#include <gtest/gtest.h>

#include "battle/record/BattleRecorder.h"
#include "battle/record/BattleReplay.h"
#include "tests/support/BattleRig.h"

namespace skylob::test {

/// A set of one round that side 1 wins with its second shot, and side 2 ticks the wind.
const std::string kText =
    "skylob battle 1\nseed 5\nplayer-1 Ann  Lee\nplayer-2 Bob\nlevel fair\nrounds 5\nspeed 50\n"
    "ticked sound wind\n"
    "round 1 draws 0 shooter 1 wind -9 pieces 50 30 950 40 field ff\n"
    "shot 1 draws 7 speed 300 angle 75 at -7 -3 out-of-bounds killed 0 deserted 4 men 96 100\n"
    "box wind on draws 8 wind 39\n"
    "no-men 2\n"
    "over rounds 1 0 kills 100 0\n";

static std::string whyRefused(const std::string& text) {
    try {
        readRecord(text);
    } catch (const RecordError& error) {
        return error.what();
    }
    return {};
}

static std::string with(std::string_view old, std::string_view other) {
    std::string text = kText;
    return text.replace(text.find(old), old.size(), other);
}

TEST(BattleRecord, IsReadAsItIsWritten) {
    const BattleRecord record = readRecord(kText);
    EXPECT_EQ(record.header.names[1], "Ann  Lee");
    EXPECT_EQ(record.header.ticked, (std::vector{Box::Sound, Box::Wind}));
    EXPECT_EQ(std::get<ShotLine>(record.lines.at(1)).at, (FieldPoint{-7, -3}));
    std::string text = textOf(record.header);
    for (const RecordLine& line : record.lines) text += textOf(line);
    EXPECT_EQ(text, kText);
}

TEST(BattleRecord, SaysWhyATextIsNone) {
    const std::string none = "it is not the recording of a battle";
    const auto unreadable = [](int line) {
        return "line " + std::to_string(line) + " cannot be read";
    };
    const std::pair<std::string, std::string> rows[] = {
        {"", none},
        {"\x7f"
         "ELF\n",
         none},
        {with("battle 1", "battle 2"), none},
        {with("seed 5", "seed 18446744073709551616"), unreadable(2)},
        {with("seed 5", "seed -5"), unreadable(2)},
        {with("player-2 ", "player-2"), unreadable(4)},
        {with("player-2 Bob", "player-2 " + std::string(81, 'x')), unreadable(4)},
        {with("fair", "fine"), unreadable(5)},
        {with("rounds 5", "rounds 21"), unreadable(6)},
        {with("speed 50", "speed 0"), unreadable(7)},
        {with("ticked sound", "ticked  sound"), unreadable(8)},
        {with("round 1", "shot 1"), unreadable(9)},
        {with("draws 0", "draws 100000001"), unreadable(9)},
        {with("field ff", "field fffffffffffffffff"), unreadable(9)},
        {with("angle 75", "angle 91"), unreadable(10)},
        {with("-7 -3", "-7 2147483648"), unreadable(10)},
        {with("men 96 100", "men 96 100 "), unreadable(10)},
        {with("draws 8", "draws 6"), unreadable(11)},  // back
        {with("no-men 2\n", "no-men 3\n"), unreadable(12)},
        {with("no-men 2\n", ""), ""},
        {with("over", "over\nover"), unreadable(13)},
        {kText.substr(0, kText.size() - 1), "it ends at line 13, before the end of the set"},
        {kText.substr(0, kText.find("over")), "it ends at line 13, before the end of the set"},
        {kText + "left\n", "something follows its last line"}};
    for (const auto& [text, why] : rows) EXPECT_EQ(whyRefused(text), why) << text;
}

/// A real battle with a wind that changes, meteors and storms, written down.
struct RecordedSet {
    RecordedSet() {
        shared.PlayerName = {"Ann", std::string{kComputerName}};
        shared.NumRounds = 5;
        battle.Form_Activate();
        while (!shared.SetOver) {
            view.runQueue();
            if (battle.shots().size() % 3 == 0) brew();
            if (battle.shots().size() % 4 == 0)
                battle.options().chkWind_Click(!battle.state().chkWind);
            battle.aims().setSpeed(1, 300 + 7 * static_cast<int>(battle.shots().size() % 20));
            battle.cmdShoot_Click();
            view.runQueue();
        }
    }

    /// Waits until the sky has had a chance of its own.
    void brew() {
        clock.time += std::chrono::hours{1};
        const std::uint64_t before = random.position();
        while (random.position() < before + 100) {
            battle.timerMeteors_Timer();
            battle.timerLightning_Timer();
        }
    }

    basSkylob shared;
    SeededRandom random{77};
    HandSetClock clock;
    InstantPacer pacer;
    SilentSounds sounds;
    AgreeingBoxes boxes;
    MemorySettings settings;
    HeadlessView view;
    std::string text;
    BattleRecorder recorder{random, [this](const std::string& some, bool startsSet) {
                                EXPECT_EQ(startsSet, text.empty());
                                text += some;
                            }};
    Battle battle{shared, {random, clock, pacer, sounds, boxes, settings, &recorder}, view};
};

TEST(BattleReplay, RepeatsASetWithoutItsStorms) {
    const RecordedSet set;
    const BattleRecord record = readRecord(set.text);
    EXPECT_GT(std::get<RoundLine>(record.lines.at(0)).pieces[2].x, 500);
    EXPECT_FALSE(replayWithoutScreen(record));
}

TEST(BattleReplay, NamesTheFirstLineThatDiffers) {
    const BattleRecord good = readRecord(RecordedSet{}.text);
    const std::size_t last = good.lines.size() - 1;
    for (std::size_t i = 0; i <= last; ++i) {
        BattleRecord record = good;
        if (auto* shot = std::get_if<ShotLine>(&record.lines[i]))
            ++shot->menLeft[1];
        else if (auto* box = std::get_if<BoxLine>(&record.lines[i]))
            ++box->wind;
        else if (auto* round = std::get_if<RoundLine>(&record.lines[i]))
            ++round->draws;
        else
            record.lines[i] = LeftLine{};
        const auto difference = replayWithoutScreen(record);
        ASSERT_TRUE(difference) << i;
        EXPECT_EQ(difference->line, 9 + i);
        EXPECT_NE(difference->recorded, difference->played);
    }
    // A shot that nobody is to fire.
    BattleRecord record = good;
    record.lines.insert(record.lines.begin() + 1, NoMenLine{2});
    EXPECT_EQ(replayWithoutScreen(record)->line, 10);
}

TEST(WatchedSet, TakesNothingButLeavingAndSpeed) {
    BattleRig rig;
    rig.random.script({0});
    rig.battle.watch();
    rig.start();
    rig.clock.time += std::chrono::hours{1};
    const int draws = rig.random.draws();
    const auto giveAll = [&rig] {
        rig.battle.cmdShoot_Click();
        rig.options().chkWind_Click(true);
        rig.options().chkMeteors_Click(false);
        rig.battle.readRules();
        rig.battle.timerMeteors_Timer();
        rig.battle.timerLightning_Timer();
    };
    giveAll();
    EXPECT_EQ(rig.random.draws(), draws);
    EXPECT_EQ(rig.tally(), "1:1 100-100 0-0 0-0 0-0 0-0");
    EXPECT_EQ(rig.ticked(), "TML");
    EXPECT_TRUE(rig.panel().isWatched);
    EXPECT_FALSE(rig.panel().commandsEnabled || rig.panel().side[1].enabled);
    rig.battle.asThePlayer([&rig] { rig.battle.cmdShoot_Click(); });
    EXPECT_EQ(rig.battle.shots().size(), 1u);
    EXPECT_TRUE(rig.panel().isWatched);
    rig.options().setGameSpeed(7);
    EXPECT_EQ(rig.shared.GameSpeed, 7);
    rig.boxes.answers = {BoxAnswer::No};  // the speed is not to be kept
    rig.battle.cmdQuit_Click();
    EXPECT_TRUE(rig.view.isClosed());
}

}  // namespace skylob::test
