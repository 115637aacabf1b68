#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <functional>
#include <random>
#include <vector>

#include "players/Ranking.h"
#include "players/SetResult.h"
#include "tests/support/PlayersRig.h"

namespace skylob::test {

namespace {

using Time = std::chrono::steady_clock;

constexpr int kPlayers = 300;
constexpr int kKills = 300, kSets = 30;  // at least

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
            list += record("Player " + std::to_string(number));
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
        ASSERT_TRUE(WIFSIGNALED(status)) << status;
        ASSERT_EQ(WTERMSIG(status), SIGKILL);
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
            PlayerRecord expected;
            for (const int side : kSides) {
                if (name != shared.PlayerName[side]) continue;
                sets[side] = found.SetsPlayed;
                expected = careers[side].at(static_cast<std::size_t>(found.SetsPlayed));
            }
            found.Name = expected.Name;
            found.Ranking = expected.Ranking;
            EXPECT_EQ(found, expected) << name;
        }
        EXPECT_EQ(sets[1], sets[2]);
        return sets;
    }

    const PerSide<std::vector<PlayerRecord>> careers{career(128, true),   // 100 + 28
                                                     career(37, false)};  // 30 + 7
};

TEST_F(KilledRecording, LeavesEveryPlayerOnceAndEveryRecordWhole) {
    const auto start = Time::now();
    RecordSetResults(file, shared);
    const Time::duration oneRecording = Time::now() - start;
    std::mt19937 chance{2026};
    PerSide<int> sets{0, 0};
    for (int kills = 0; (kills < kKills || sets[1] < kSets) && !HasFailure(); ++kills) {
        recordAndKill(oneRecording * (chance() % 2000) / 1000);
        sets = checkFile();
    }
}

/// What a file system offers: files without a name, or only such as have one.
enum class NewFiles { Unnamed, Named };

void PrintTo(NewFiles files, std::ostream* out) {
    *out << (files == NewFiles::Unnamed ? "UnnamedFiles" : "NamedFiles");
}

/// From now on this process cannot open files without a name.
void forbidUnnamedFiles() {
    constexpr auto kUnnamed = static_cast<unsigned>(O_TMPFILE & ~O_DIRECTORY);
    sock_filter steps[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])),
        BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, kUnnamed, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog filter{std::size(steps), steps};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) != 0)
        _exit(2);
}

struct KilledAtEveryStep : testing::TestWithParam<NewFiles>, PlayersRig {
    KilledAtEveryStep() {
        shared.PlayerName = {"Dora", "Bob"};
        shared.RoundsWon = {4, 1};
        shared.Winner = 1;
    }

    /// Does it in a process of its own, which is killed when it enters or leaves its `step`-th
    /// system call. False when it has ended well before that.
    bool killedAt(int step, const std::function<void()>& work) {
        const pid_t child = fork();
        if (child == 0) {
            if (GetParam() == NewFiles::Named) forbidUnnamedFiles();
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            raise(SIGSTOP);
            work();
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        for (int stops = 0; stops < step && WIFSTOPPED(status); ++stops) {
            ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
            waitpid(child, &status, 0);
        }
        if (!WIFSTOPPED(status)) {
            EXPECT_TRUE(WIFEXITED(status)) << status;
            EXPECT_EQ(WEXITSTATUS(status), 0);
            return false;
        }
        kill(child, SIGKILL);
        waitpid(child, &status, 0);
        return true;
    }

    /// Kills it at every step in turn. The list must be one of these two, and unless there is a
    /// whole temporary file, a deletion doubles nobody.
    void killEverywhere(const std::string& before, const std::string& after,
                        const std::function<void()>& work) {
        int step = 0, wholeTemporaries = 0;
        for (bool killed = true; killed && !HasFailure(); ++step) {
            std::filesystem::remove(tempPath);
            put(before);
            killed = killedAt(step, work);
            const std::string found = bytes();
            if (!killed || found != before) {
                EXPECT_EQ(found, after) << step;
            }
            if (std::filesystem::exists(tempPath)) {
                if (GetParam() == NewFiles::Named) continue;
                EXPECT_EQ(bytesOf(tempPath), after) << step;
                ++wholeTemporaries;
            } else if (!found.empty()) {
                EXPECT_EQ(remove(1), ListChange::Done) << step;
                EXPECT_EQ(bytes().size(), found.size() - kRecordLength) << step;
            }
        }
        EXPECT_GT(step, 20);
        EXPECT_LE(wholeTemporaries, 2);  // named and not yet renamed
    }
};

TEST_P(KilledAtEveryStep, LeavesAllOfTheOldListOrAllOfTheNewOne) {
    // Dora: (1 + 28) / 1, won: 0973.08; Bob: (1 + 7) / 1, lost: 1001.00, below those without a set
    killEverywhere(ann + bob + cyd + record("Dora"),
                   record("Dora", 1, 1, 29, 1) + ann + cyd + record("Bob", 1, 0, 8, 4),
                   [this] { RecordSetResults(file, shared); });
    killEverywhere(ann + bob + cyd, ann + cyd, [this] { remove(2); });
    killEverywhere(ann, "", [this] { remove(1); });
}

INSTANTIATE_TEST_SUITE_P(, KilledAtEveryStep, testing::Values(NewFiles::Unnamed, NewFiles::Named),
                         testing::PrintToStringParamName());

}  // namespace

}  // namespace skylob::test
