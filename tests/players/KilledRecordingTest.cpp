#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <random>

#include "players/Ranking.h"
#include "tests/support/PlayersRig.h"

namespace skylob::test {

/// The stops between the call that names a temporary file and the one that renames it.
#ifdef __SANITIZE_ADDRESS__
constexpr int kMostWholeTemporaries = 4;  // the sanitizer makes a call of its own there
#else
constexpr int kMostWholeTemporaries = 2;
#endif

/// From now on this process cannot open files without a name.
static void forbidUnnamedFiles() {
    constexpr auto kUnnamed = static_cast<unsigned>(O_TMPFILE & ~O_DIRECTORY);
    sock_filter steps[] = {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
                           BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat, 0, 3),
                           BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])),
                           BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, kUnnamed, 0, 1),
                           BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP),
                           BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
    const sock_fprog filter{std::size(steps), steps};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) != 0)
        _exit(2);
}

/// Its parameter: whether the file system offers only files that have a name.
struct KilledRecording : testing::TestWithParam<bool>, PlayersRig {
    /// Begins to do it in a process of its own, which is stopped there.
    void start(const std::function<void()>& work) {
        child = fork();
        if (child == 0) {
            if (GetParam()) forbidUnnamedFiles();
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            raise(SIGSTOP);
            work();
            _exit(0);
        }
        waitpid(child, &status, 0);
    }
    void go(decltype(PTRACE_SYSCALL) how) { ptrace(how, child, nullptr, nullptr); }
    void killChild() {
        kill(child, SIGKILL);
        waitpid(child, &status, 0);
        ASSERT_EQ(WIFSIGNALED(status) ? WTERMSIG(status) : -status, SIGKILL);
    }

    /// The sets that both players have finished, after a look at the whole list.
    int setsInList() {
        PerSide<int> sets{0, 0};
        std::set<std::string> names;
        for (PlayerRecord found : file.readAll()) {
            const std::string name = nameOf(found);
            names.insert(name);
            PlayerRecord expected;
            for (const int side : kSides)
                if (name == shared.PlayerName[side])
                    for (; sets[side] < found.SetsPlayed; ++sets[side])
                        countSet(expected, side == 1 ? 128 : 37, side == 1);
            found.Name = expected.Name;
            found.Ranking = expected.Ranking;
            EXPECT_EQ(found, expected) << name;
        }
        EXPECT_EQ(names.size(), 300U);
        EXPECT_EQ(file.PlayerCount, 300);
        EXPECT_EQ(sets[1], sets[2]);
        return sets[1];
    }

    /// Kills it at every system call in turn, as it enters or leaves it. The list must be one of
    /// these two, and unless there is a whole temporary file, a deletion doubles nobody.
    void killEverywhere(const std::string& before, const std::string& after,
                        const std::function<void()>& work) {
        int step = 0, wholeTemporaries = 0;
        for (bool killed = true; killed && !HasFailure(); ++step) {
            std::filesystem::remove(tempPath);
            put(before);
            start(work);
            for (int stops = 0; stops < step && WIFSTOPPED(status); ++stops) {
                go(PTRACE_SYSCALL);
                waitpid(child, &status, 0);
            }
            killed = WIFSTOPPED(status);
            if (killed) killChild();
            const std::string found = bytes();
            EXPECT_EQ(killed ? 0 : status, 0);  // else it has ended, and well
            EXPECT_EQ(found, killed && found == before ? before : after) << step;
            if (std::filesystem::exists(tempPath)) {
                if (GetParam()) continue;
                EXPECT_EQ(bytesOf(tempPath), after) << step;
                ++wholeTemporaries;
            } else if (!found.empty()) {
                EXPECT_EQ(remove(1), ListChange::Done) << step;
                EXPECT_EQ(bytes().size(), found.size() - kRecordLength) << step;
            }
        }
        EXPECT_GT(step, 20);
        EXPECT_LE(wholeTemporaries, kMostWholeTemporaries);
    }

    pid_t child = 0;
    int status = 0;
};

TEST_P(KilledRecording, LeavesEveryPlayerOnceAndEveryRecordWhole) {
    finishSet({"Player 150", "Player 7"}, {4, 1}, {300, 90});  // scores of 100 + 28 and 30 + 7
    std::string list;
    for (int number = 1; number <= 300; ++number)
        list += record("Player " + std::to_string(number));
    put(list);
    using Time = std::chrono::steady_clock;
    const auto before = Time::now();
    RecordSetResults(file, shared);
    const Time::duration oneRecording = Time::now() - before;
    std::mt19937 chance{2026};
    for (int kills = 0, sets = 0; (kills < (GetParam() ? 100 : 300) || sets < 30) && !HasFailure();
         ++kills) {
        start([this] {
            for (;;) RecordSetResults(file, shared);
        });
        go(PTRACE_CONT);
        const auto end = Time::now() + oneRecording * (chance() % 2000) / 1000;
        while (Time::now() < end) continue;
        killChild();
        sets = setsInList();
    }
}

TEST_P(KilledRecording, LeavesAllOfTheOldListOrAllOfTheNewOneAtEveryStep) {
    finishSet({"Dora", "Bob"}, {4, 1});
    // Dora: (1 + 28) / 1, won: 0973.08; Bob: (1 + 7) / 1, lost: 1001.00, below those without a set
    killEverywhere(ann + bob + cyd + record("Dora"),
                   record("Dora", 1, 1, 29, 1) + ann + cyd + record("Bob", 1, 0, 8, 4),
                   [this] { RecordSetResults(file, shared); });
    killEverywhere(ann + bob + cyd, ann + cyd, [this] { remove(2); });
    killEverywhere(ann, "", [this] { remove(1); });
}

INSTANTIATE_TEST_SUITE_P(OnlyNamedFiles, KilledRecording, testing::Bool());

}  // namespace skylob::test
