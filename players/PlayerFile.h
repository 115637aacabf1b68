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

/// The list of players on disk: records of 29 bytes, numbered from 1, nothing before or behind
/// them. It is open only while something is done with it, also when that fails.
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

    /// Opens the file, made empty when it is missing, and measures it. Closes it first if it is
    /// open.
    void OpenPlayerFile();

    /// Measures the file, brings what was written to the disk, and closes it. Does nothing when
    /// it is not open.
    void ClosePlayerFile();

    /// Sees to it that an open file is closed at the end of a block, also when something in it
    /// fails.
    class ClosedAtEnd {
      public:
        explicit ClosedAtEnd(PlayerFile& file) : m_file{file} {}
        ~ClosedAtEnd() { m_file.abandon(); }
        ClosedAtEnd(const ClosedAtEnd&) = delete;
        ClosedAtEnd& operator=(const ClosedAtEnd&) = delete;

      private:
        PlayerFile& m_file;
    };

    /// For record numbers of 1..PlayerCount; FileError for others. Damaged records read as whatever
    /// they hold, missing bytes as zero.
    void readRecord(int number);

    /// For an open file and record numbers of 1..PlayerCount; one more may be written and is then
    /// the new last. FileError for others.
    void writeRecord(int number);

    /// As writeRecord(), but nothing reaches the disk before a rewrite(), together with which it
    /// does. Without one, or when that fails, the record is written when the file is closed.
    void keepRecord(int number);

    /// Opens the file, reads all of it, and closes it. A list that may only be read will do.
    std::vector<PlayerRecord> readAll();

    /// Whether a player of exactly this name, blanks at its ends aside, is in the list.
    bool NameAlreadyExists(std::string_view name);

    /// Makes the records with these numbers, in this order, the whole list: whoever has played a
    /// set is ranked by the place in it, the others get 0. The file must be open and is closed
    /// then. The new list takes the old one's place in one step, when it is safe on the disk. An
    /// older "TempFile.$$$" is not cut short: records that it has beyond these stay in the list.
    void rewrite(std::span<const int> recordNumbers);

    /// Puts a new player, without any set, at the end. `name` as for setName(). False, and nothing
    /// is written, when the list is full.
    [[nodiscard]] bool addPlayer(std::string_view name);

    /// Changes the name of a record and nothing else. False, and nothing is written, when the
    /// record is no longer there or has another name than when it was listed.
    [[nodiscard]] bool renamePlayer(const ListedPlayer& player, std::string_view name);

    /// Takes a record out and ranks the others by their places. Without the last one there is no
    /// file any more. False as for renamePlayer().
    [[nodiscard]] bool deletePlayer(const ListedPlayer& player);

  private:
    void take(std::unique_ptr<RandomAccessFile> file);
    int countIn(std::int64_t length, const char* holds) const;
    int held() const;
    void checkNumber(int number, int last) const;
    bool stillHolds(const ListedPlayer& player);
    std::string ranked(std::span<const int> recordNumbers);
    void addLeftover(std::string& list);
    void writeKept(RandomAccessFile& file);
    void abandon() noexcept;

    FileSystem& m_files;
    std::string PlayerFileName;
    std::string m_tempFileName;
    std::unique_ptr<RandomAccessFile> PlayerFileHandle;
    std::string m_bytes;      ///< all that the open file holds, and the kept records
    std::vector<int> m_kept;  ///< numbers of records that are not on the disk yet
    bool m_written = false;   ///< and not yet brought to the disk
};

}  // namespace skylob
