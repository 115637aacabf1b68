#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <functional>

#include "platform/DiskFile.h"
#include "players/Ranking.h"
#include "players/Windows1252.h"
#include "tests/support/PlayersRig.h"

namespace skylob::test {

using namespace std::string_literals;

struct PlayerFileTest : testing::Test, PlayersRig {
    static std::string errorOf(const std::function<void()>& work) {
        try {
            work();
        } catch (const FileError& error) {
            return error.what();
        }
        return "none";
    }
};

TEST_F(PlayerFileTest, AddsAndRenamesInPlace) {
    add("Ann");
    add("Twenty characters and more");
    add("Zo\xC3\xAB \xE2\x82\xAC \xC5\x81 \xF0\x9F\x98\x80 \xFF");  // Zoë € Ł, a smile, a lone byte
    EXPECT_EQ(bytes(), ann + record("Twenty characters an") + record("Zo\xEB \x80 ? ? ?"));
    EXPECT_EQ(file.PlayerCount, 3);
    EXPECT_EQ(listed(3).name(), "Zo\xC3\xAB \xE2\x82\xAC ? ? ?");
    std::string tooLong;  // twenty-one characters of two bytes each
    for (int i = 0; i < 21; ++i) tooLong += "\xC3\xAB";
    EXPECT_EQ(nameOnFile("  " + tooLong), tooLong.substr(0, 40));
    EXPECT_EQ(nameOnFile(" \t "), "");
    put(record("Twenty characters...", "\4\0\3\0\x2C\1\1\0\x7F"s) + bob);
    rename(1, "Al");
    EXPECT_EQ(bytes(), record("Al", "\4\0\3\0\x2C\1\1\0\x7F"s) + bob);
    EXPECT_EQ(folder.content(), "Skylob.Data ");
}

TEST(Windows1252, HasSpecialCharactersOfItsOwn) {
    const std::string bytes =
        "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92\x93\x94\x95\x96\x97\x98\x99"
        "\x9A\x9B\x9C\x9E\x9F\xA0\xFF";
    const std::string utf8 = "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ\xC2\xA0ÿ";
    EXPECT_EQ(fromWindows1252(bytes), utf8);
    EXPECT_EQ(toWindows1252(utf8), bytes);
    EXPECT_EQ(toWindows1252("\xC3Z\xE2\x82Y"), "?Z??Y");
    // Longer than need be, half of a pair, beyond the last one, cut off.
    for (const char* wrong :
         {"\xE0\x81\x81", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82", "\xC2\x81"})
        EXPECT_EQ(toWindows1252(wrong).find_first_not_of('?'), std::string::npos) << wrong;
}

TEST_F(PlayerFileTest, CountsAndShowsWhateverItHolds) {
    const std::string odd = record("\tA\0B\x7F\x81"s, "\xFF\xFF\0\x80\xFF\x7F\1\2\xFE"s);
    put(odd + record("  Bob"));
    for (const auto& [length, count] : {std::pair{58, 2}, {44, 2}, {43, 1}, {15, 1}, {14, 0}}) {
        std::filesystem::resize_file(path, static_cast<std::uintmax_t>(length));
        file.OpenPlayerFile();
        EXPECT_EQ(file.PlayerCount, count) << length;
    }
    put(odd + "  Bob");
    file.OpenPlayerFile();
    file.readRecord(1);
    const auto& [name, played, won, average, ranking, spare] = file.CurrentRecord;
    EXPECT_EQ(std::tuple(played, won, average, ranking, spare),
              std::tuple(-1, -32768, 32767, 513, 254));
    EXPECT_EQ(nameOf(file.CurrentRecord), "A B");
    // Five bytes are no record, so the new one goes over them.
    add("Cyd");
    EXPECT_EQ(bytes(), odd + cyd);
    // The missing bytes of a last record are zeros, and control characters.
    put(odd + record("Bob", ""));
    remove(1);
    EXPECT_EQ(bytes(), bob);
}

TEST_F(PlayerFileTest, DeletesAndRanksByPlace) {
    const std::string before = record("Ann", 4, 3, 41, 1, 5) + record("Bob", 1, 1, 30, 2, 6) + cyd +
                               record("Dan", 1, 0, 30, 4);
    put(before);
    std::filesystem::create_hard_link(path, folder / "old");
    remove(1);
    EXPECT_EQ(bytes(), record("Bob", 1, 1, 30, 1, 6) + cyd + record("Dan", 1, 0, 30, 3));
    EXPECT_EQ(folder.content(), "Skylob.Data old ");
    EXPECT_EQ(bytesOf(folder / "old"), before);  // replaced at one stroke, not overwritten
}

TEST_F(PlayerFileTest, KeepsWhatAnOlderTemporaryFileHasBeyondTheList) {
    const std::string older = record("Older", 1, 1, 1, 1);
    put(ann + bob);
    putBytes(tempPath, record("Old") + older + "half of a record...");
    remove(1);
    EXPECT_EQ(bytes(), bob + older + "half of a record...");
    EXPECT_EQ(file.PlayerCount, 3);
    EXPECT_EQ(file.records(), PlayerFile(files, path).readAll());
    putBytes(tempPath, record("Old"));
    for (int left = 3; left > 0; --left) remove(1);
    EXPECT_EQ(folder.content(), "");
    EXPECT_EQ(file.PlayerCount, 0);
    EXPECT_EQ(file.records().size(), 0U);
}

TEST_F(PlayerFileTest, RefusesTooManyPlayers) {
    const std::string most(29 * 32767, 'x');
    put(most);
    rename(32767, "Bob");
    EXPECT_EQ(bytes().substr(29 * 32766), record("Bob", "xxxxxxxxx"));
    putBytes(tempPath, most + record("One more"));
    put(ann + bob);
    EXPECT_THROW(remove(1), FileError);
    EXPECT_EQ(bytes().size(), 58U);

    put(most + "fifteen bytes..");
    EXPECT_EQ(errorOf([this] { file.readAll(); }),
              path + " holds more than 32767 players, which is too many.");
    EXPECT_EQ(bytes(), most + "fifteen bytes..");
}

TEST_F(PlayerFileTest, TellsWhatFailedAndChangesNothing) {
    const std::string before = record("Ann", 1, 1, 30, 1) + bob;
    for (const char* failing :
         {"open Skylob.Data", "read Skylob.Data", "open TempFile.$$$", "replace Skylob.Data"}) {
        put(before);
        files.failing = failing;
        EXPECT_THROW(remove(2), FileError) << failing;
        EXPECT_EQ(bytes(), before) << failing;
        files.failing.clear();
        EXPECT_EQ(file.readAll().size(), 2U) << failing;  // nothing of the failure is left behind
    }
    put(ann);
    for (const char* failing : {"remove Skylob.Data", "write Skylob.Data", "sync Skylob.Data"}) {
        files.failing = failing;
        EXPECT_THROW(*failing == 'r' ? remove(1) : add("Bob"), FileError) << failing;
        EXPECT_EQ(bytes().substr(0, 29), ann) << failing;
    }
    files.failing.clear();
    EXPECT_EQ(errorOf([this] { DiskFile::tryToOpen(path, O_WRONLY)->read(0, 1); }),
              "Could not read " + path + ":\nBad file descriptor");
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    const std::string couldNotOpen = "Could not open " + path + ":\nI";
    EXPECT_EQ(errorOf([this] { add("Bob"); }), couldNotOpen + "t is no plain file");
    EXPECT_EQ(errorOf([this] { RecordSetResults(file, shared); }), couldNotOpen + "s a directory");
}

TEST_F(PlayerFileTest, KnowsOnlyTheRecordsThatThereAre) {
    const std::string before = ann + record(" Bob");
    put(before);
    file.OpenPlayerFile();
    for (const int number : {-1, 0, 3}) EXPECT_THROW(file.readRecord(number), FileError) << number;
    for (const int number : {-1, 0, 4}) EXPECT_THROW(file.writeRecord(number), FileError) << number;
    EXPECT_EQ(bytes(), before);
    file.writeRecord(3);
    file.readRecord(3);
    file.ClosePlayerFile();
    put(before);
    // Another one in that place, nobody, and one who only looks the same.
    const PlayerRecord second = listed(2).record;
    for (const ListedPlayer& gone :
         {ListedPlayer{1, second}, {3, second}, {0, second}, {2, unpackRecord("Bob ")}}) {
        EXPECT_EQ(file.renamePlayer(gone, "Bea"), ListChange::Outdated);
        EXPECT_EQ(file.deletePlayer(gone), ListChange::Outdated);
    }
    EXPECT_EQ(bytes(), before);
    ListedPlayer known{2, second};
    known.record.SetsPlayed = 7;  // a set that another copy has recorded in between
    EXPECT_EQ(file.renamePlayer(known, "Bea"), ListChange::Done);
    EXPECT_EQ(bytes(), ann + record("Bea"));
}

TEST_F(PlayerFileTest, WritesThroughNoLinkInThePlaceOfItsTemporaryFile) {
    const std::string other = folder / "other", text(100, 'x');
    putBytes(other, text);
    for (const char* pointsTo : {"other", "nothing", ""}) {
        put(ann + bob);
        for (const char* left : {"Bob", ""}) {
            if (*pointsTo)
                std::filesystem::create_symlink(folder / pointsTo, tempPath);
            else
                std::filesystem::create_hard_link(other, tempPath);
            EXPECT_EQ(remove(1), ListChange::Done);
            EXPECT_EQ(bytes(), *left ? record(left) : "");
            EXPECT_EQ(bytesOf(other), text);
            EXPECT_EQ(folder.content(), *left ? "Skylob.Data other " : "other ");
        }
    }
}

/// Does it as somebody who may do no more than any user.
static void asAnyUser(const std::function<void()>& work) {
    const bool changed = geteuid() == 0 && seteuid(65534) == 0;
    EXPECT_NO_THROW(work());
    if (changed && seteuid(0) != 0) std::abort();
}

TEST_F(PlayerFileTest, ReadsAListThatMayOnlyBeRead) {
    const auto permit = [this](int ofList, int ofFolder) {
        std::filesystem::permissions(path, std::filesystem::perms(ofList));
        std::filesystem::permissions(folder / "", std::filesystem::perms(ofFolder));
    };
    shared.PlayerName = {"Ann", "Bob"};
    put(ann + bob);
    permit(0444, 0777);
    asAnyUser([this] {
        EXPECT_EQ(file.readAll().size(), 2U);
        EXPECT_EQ(add("Ann"), ListChange::NameTaken);
        EXPECT_EQ(rename(1, "Bob"), ListChange::NameTaken);
        const std::string refusal = "Could not open " + path + ":\nPermission denied";
        EXPECT_EQ(errorOf([this] { add("Cyd"); }), refusal);
        EXPECT_EQ(errorOf([this] { rename(1, "Cyd"); }), refusal);
        EXPECT_THROW(remove(1), FileError);
        EXPECT_THROW(RecordSetResults(file, shared), FileError);
    });
    EXPECT_EQ(bytes(), ann + bob);
    permit(0666, 0555);
    asAnyUser([this] {
        EXPECT_THROW(remove(1), FileError);
        EXPECT_EQ(bytes(), ann + bob);
        add("Cyd");
        EXPECT_EQ(file.readAll().size(), 3U);
    });
    permit(0666, 0777);
    EXPECT_EQ(folder.content(), "Skylob.Data ");
}

TEST_F(PlayerFileTest, WritesAllOfARecordOrNothing) {
    const auto limitFileSize = [](rlim_t most) {
        rlimit limit;
        getrlimit(RLIMIT_FSIZE, &limit);
        limit.rlim_cur = std::min(most, limit.rlim_max);
        setrlimit(RLIMIT_FSIZE, &limit);
    };
    std::signal(SIGXFSZ, SIG_IGN);
    put(ann + bob);
    limitFileSize(80);  // in the middle of a third record
    EXPECT_EQ(errorOf([this] { add("Cyd"); }), "Could not write " + path + ":\nFile too large");
    EXPECT_EQ(bytes(), ann + bob);
    const int uncut = memfd_create("of which nothing can be cut off", MFD_ALLOW_SEALING);
    fcntl(uncut, F_ADD_SEALS, F_SEAL_SHRINK);
    const std::string name = "/proc/self/fd/" + std::to_string(uncut);
    EXPECT_EQ(errorOf([&name] { DiskFile::tryToOpen(name, O_RDWR)->write(79, "ab"); }),
              "Could not write " + name + ":\nFile too large\nPart of it is in the file");
    limitFileSize(35);  // in the middle of the second name
    EXPECT_THROW(rename(2, "Bertram the Elder"), FileError);
    file.OpenPlayerFile();
    EXPECT_THROW(file.rewrite(std::vector{2, 1}), FileError);
    limitFileSize(RLIM_INFINITY);
    EXPECT_EQ(bytes(), ann + bob);
    remove(1);
    EXPECT_EQ(bytes(), bob);
}

}  // namespace skylob::test
