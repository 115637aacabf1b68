#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/FileSystem.h"
#include "players/PlayerRecord.h"

namespace skylob {

/// A row of a list that has been read, and may have been changed on the disk since.
struct ListedPlayer {
    int recordNumber = 0;
    PlayerRecord record;

    std::string name() const { return nameOf(record); }
};

/// What has come of a change to the list. Nothing is written unless it is Done.
enum class ListChange {
    Done,
    NameTaken,  ///< somebody in the list has that name already
    ListFull,
    Outdated,  ///< the record is no longer there, or has another name than when it was listed
};

/// The list of players on disk: records of 29 bytes, numbered from 1, nothing before or behind
/// them. It is read whole when it is opened, and is open only while something is done with it.
///
/// Errors: every member throws FileError when the disk refuses, and when the list holds or would
/// hold more than kMostPlayers. The files are then as they were before the step that failed.
class PlayerFile {
  public:
    static constexpr int kMostPlayers = 32767;

    /// `files` must outlive the object. Lists are rewritten through "TempFile.$$$" in the same
    /// folder as `fileName`.
    PlayerFile(FileSystem& files, std::string fileName);

    PlayerRecord CurrentRecord;  ///< every record read or written passes through here
    int PlayerCount = 0;         ///< the number of records when last measured

    // What a user does with the list, in one opening each.

    /// All records. A list that may only be read will do.
    std::vector<PlayerRecord> readAll();

    /// Puts a new player, without any set, at the end. `name` as for setName().
    [[nodiscard]] ListChange addPlayer(std::string_view name);

    /// Changes the name of a record and nothing else. The player's own name is taken, too.
    [[nodiscard]] ListChange renamePlayer(const ListedPlayer& player, std::string_view name);

    /// Takes a record out and ranks the others by their places. Without the last one there is no
    /// file any more.
    [[nodiscard]] ListChange deletePlayer(const ListedPlayer& player);

    /// All records as the last opening has left them, without another one.
    std::vector<PlayerRecord> records();

    // What these are made of.

    /// One opening, from here to the end of the block however that comes.
    class Session {
      public:
        enum class Access { Full, ReadingWillDo };

        explicit Session(PlayerFile& file, Access access = Access::Full);
        ~Session();
        Session(const Session&) = delete;
        Session& operator=(const Session&) = delete;

        /// Ends it after a change, and throws FileError if not all could be stored. The destructor
        /// keeps that to itself.
        void close() { m_file.ClosePlayerFile(); }

      private:
        PlayerFile& m_file;
    };

    /// Opens the file, made empty when it is missing, and measures it. Closes it first if it is
    /// open.
    void OpenPlayerFile();

    /// Measures the file, brings what was written to the disk, and closes it. Does nothing when
    /// it is not open.
    void ClosePlayerFile();

    /// For record numbers of 1..PlayerCount; FileError for others. Damaged records read as whatever
    /// they hold, missing bytes as zero.
    void readRecord(int number);

    /// For an open file and record numbers of 1..PlayerCount; one more may be written and is then
    /// the new last. FileError for others.
    void writeRecord(int number);

    /// As writeRecord(), but nothing reaches the disk before a rewrite(), together with which it
    /// does. Without one, or when that fails, the record is written when the file is closed.
    void keepRecord(int number);

    /// Whether a player of exactly this name, blanks at its ends aside, is in the open list.
    bool NameAlreadyExists(std::string_view name);

    /// Makes the records with these numbers, in this order, the whole list: whoever has played a
    /// set is ranked by the place in it, the others get 0. For an open file, which stays the old
    /// one until it is closed. The new list takes the old one's place in one step, when it is safe
    /// on the disk. An older "TempFile.$$$" is not cut short: records that it has beyond these stay
    /// in the list.
    void rewrite(std::span<const int> recordNumbers);

  private:
    void openForReading();
    void take(std::unique_ptr<RandomAccessFile> file);
    void hold(std::string list, int count);
    int countIn(std::int64_t length, const char* holds) const;
    int held() const;
    void checkNumber(int number, int last) const;
    void wantChanges();
    bool stillHolds(const ListedPlayer& player);
    std::string ranked(std::span<const int> recordNumbers);
    void addLeftover(std::string& list);
    void removeFiles();
    void writeKept(RandomAccessFile& file);

    FileSystem& m_files;
    std::string PlayerFileName;
    std::string m_tempFileName;
    std::unique_ptr<RandomAccessFile> PlayerFileHandle;
    std::string m_bytes;      ///< all that the list held when last open, and the kept records
    std::vector<int> m_kept;  ///< numbers of records that are not on the disk yet
    bool m_written = false;   ///< and not yet brought to the disk
};

}  // namespace skylob
