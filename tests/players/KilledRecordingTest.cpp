#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <vector>

#include "players/Ranking.h"
#include "players/SetResult.h"
#include "tests/support/PlayersRig.h"

namespace skylob::test {

namespace {

using Time = std::chrono::steady_clock;

constexpr int kPlayers = 300;
constexpr int kKills = 500;

/// The records that a player can have after any number of sets, but for name and ranking.
std::vector<PlayerRecord> career(int score, bool winner) {
    std::vector<PlayerRecord> known(30000);
    for (std::size_t sets = 1; sets < known.size(); ++sets) {
        known[sets] = known[sets - 1];
        countSet(known[sets], score, winner);
    }
    return known;
}

struct KilledRecording : testing::Test, PlayersRig {
    KilledRecording() {
        shared.PlayerName = {"Player 150", "Player 7"};
        shared.RoundsWon = {4, 1};
        shared.TotalKills = {300, 90};
        shared.Winner = 1;
        std::string list;
        for (int number = 1; number <= kPlayers; ++number)
            list += record("Player " + std::to_string(number), kNew);
        put(list);
    }

    /// Records sets in a process of its own, which is killed in the middle of it.
    void recordAndKill(Time::duration life) {
        int ready[2];
        ASSERT_EQ(pipe(ready), 0);
        const pid_t child = fork();
        if (child == 0 && write(ready[1], "!", 1) == 1)
            for (;;) RecordSetResults(file, shared);
        char sign = 0;
        ASSERT_EQ(read(ready[0], &sign, 1), 1);
        const auto end = Time::now() + life;
        while (Time::now() < end) continue;
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
        file.OpenPlayerFile();
        EXPECT_EQ(file.PlayerCount, kPlayers);
        std::set<std::string> names;
        for (PlayerRecord found : file.readAll()) {
            const std::string name = nameOf(found);
            EXPECT_TRUE(names.insert(name).second) << name;
            found.Name = PlayerRecord::blankName();
            found.Ranking = 0;
            const int side = name == shared.PlayerName[1]   ? 1
                             : name == shared.PlayerName[2] ? 2
                                                            : 0;
            if (side != 0) sets[side] = found.SetsPlayed;
            const auto& known = side == 1 ? winner : loser;
            EXPECT_EQ(found, known.at(static_cast<std::size_t>(side == 0 ? 0 : sets[side])))
                << name;
        }
        return sets;
    }

    const std::vector<PlayerRecord> winner = career(128, true);  // 100 + 28
    const std::vector<PlayerRecord> loser = career(37, false);   // 30 + 7
};

TEST_F(KilledRecording, LeavesEveryPlayerOnceAndEveryRecordWhole) {
    const auto start = Time::now();
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
