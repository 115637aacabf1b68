#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <map>
#include <random>

#include "players/Ranking.h"
#include "players/SetResult.h"
#include "tests/support/FileFakes.h"

namespace skylob::test {

namespace {

constexpr int kPlayers = 300;
constexpr int kKills = 500;

std::string playerName(int number) {
    return "Player " + std::to_string(number);
}

/// The records that a player can have after any number of sets, but for the ranking.
class Career {
  public:
    Career(int score, bool winner) {
        PlayerRecord record;
        m_known[0] = record;
        for (int sets = 1; sets < 30000; ++sets) {
            countSet(record, score, winner);
            m_known[sets] = record;
        }
    }

    bool knows(PlayerRecord record) const {
        record.Name = PlayerRecord::blankName();
        record.Ranking = 0;
        const auto found = m_known.find(record.SetsPlayed);
        return found != m_known.end() && found->second == record;
    }

  private:
    std::map<int, PlayerRecord> m_known;
};

struct KilledRecording : testing::Test {
    KilledRecording() {
        shared.PlayerName = {playerName(150), playerName(7)};
        shared.RoundsWon = {4, 1};
        shared.TotalKills = {300, 90};
        shared.Winner = 1;
        std::string list;
        for (int number = 1; number <= kPlayers; ++number)
            list += record(playerName(number), std::string(9, '\0'));
        putBytes(path, list);
    }

    /// Records sets in a process of its own, which is killed in the middle of it.
    void recordAndKill(std::chrono::nanoseconds life) {
        int ready[2];
        ASSERT_EQ(pipe(ready), 0);
        const pid_t child = fork();
        if (child == 0) {
            PlayerFile file{disk, path};
            if (write(ready[1], "!", 1) == 1)
                for (;;) RecordSetResults(file, shared);
        }
        char sign = 0;
        ASSERT_EQ(read(ready[0], &sign, 1), 1);
        const auto end = std::chrono::steady_clock::now() + life;
        while (std::chrono::steady_clock::now() < end) continue;
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << status;
        close(ready[0]);
        close(ready[1]);
    }

    /// How far the two players have come, after a look at the whole file.
    PerSide<int> checkFile() {
        PerSide<int> sets{0, 0};
        PlayerFile file{disk, path};
        file.OpenPlayerFile();
        EXPECT_EQ(file.PlayerCount, kPlayers);
        std::map<std::string, int> seen;
        for (int number = 1; number <= file.PlayerCount; ++number) {
            file.readRecord(number);
            const PlayerRecord& found = file.CurrentRecord;
            const std::string name = nameOf(found);
            ++seen[name];
            EXPECT_EQ(seen[name], 1) << name;
            if (name == shared.PlayerName[1]) {
                EXPECT_TRUE(winner.knows(found));
                sets[1] = found.SetsPlayed;
            } else if (name == shared.PlayerName[2]) {
                EXPECT_TRUE(loser.knows(found));
                sets[2] = found.SetsPlayed;
            } else {
                EXPECT_EQ(found.SetsPlayed + found.SetsWon + found.Ranking, 0) << name;
            }
        }
        return sets;
    }

    TempFolder folder;
    std::string path = folder / "Skylob.Data";
    DiskFiles disk;
    basSkylob shared;
    Career winner{128, true}, loser{37, false};  // 100 + 28 and 30 + 7
};

TEST_F(KilledRecording, LeavesEveryPlayerOnceAndEveryRecordWhole) {
    using Time = std::chrono::steady_clock;
    const auto start = Time::now();
    PlayerFile file{disk, path};
    RecordSetResults(file, shared);
    const Time::duration oneRecording = Time::now() - start;
    std::mt19937 chance{2026};
    PerSide<int> sets;
    for (int kills = 0; kills < kKills && !HasFailure(); ++kills) {
        recordAndKill(oneRecording * (chance() % 2000) / 1000);
        sets = checkFile();
    }
    EXPECT_GT(sets[1], 100);
    EXPECT_LE(std::abs(sets[1] - sets[2]), kKills);
}

}  // namespace

}  // namespace skylob::test
