#include "players/PlayerFile.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "base/TrimBlanks.h"

namespace skylob {

namespace {

constexpr std::int64_t kLength = kRecordLength;

std::int64_t offsetOf(int number) {
    return (number - 1) * kLength;
}

std::string_view recordIn(std::string_view list, int number) {
    return list.substr(static_cast<std::size_t>(offsetOf(number)), kRecordLength);
}

}  // namespace

PlayerFile::PlayerFile(FileSystem& files, std::string fileName)
    : m_files{files},
      PlayerFileName{std::move(fileName)},
      m_tempFileName{std::filesystem::path{PlayerFileName}.replace_filename("TempFile.$$$")} {
}

/// `holds` is what a list that is too long does: "holds" or "would hold".
int PlayerFile::countIn(std::int64_t length, const char* holds) const {
    const std::int64_t count = (length + kLength / 2) / kLength;
    // Quirk "full list": a longer one is an error.
    if (count > kMostPlayers) {
        throw FileError{PlayerFileName + ' ' + holds + " more than " +
                        std::to_string(kMostPlayers) + " players, which is too many."};
    }
    return static_cast<int>(count);
}

PlayerFile::Session::Session(PlayerFile& file, Access access) : m_file{file} {
    if (access == Access::Full)
        file.OpenPlayerFile();
    else
        file.openForReading();
}

PlayerFile::Session::~Session() {
    try {
        close();
    } catch (const FileError&) {
        // Nothing has been changed, or another error is on its way already.
    }
}

void PlayerFile::OpenPlayerFile() {
    ClosePlayerFile();
    take(m_files.open(PlayerFileName));
}

/// As OpenPlayerFile(), but a list that may only be read is opened as well.
void PlayerFile::openForReading() {
    ClosePlayerFile();
    take(m_files.openForReading(PlayerFileName));
}

void PlayerFile::take(std::unique_ptr<RandomAccessFile> file) {
    PlayerCount = countIn(file->length(), "holds");
    hold(file->read(0, static_cast<std::size_t>(offsetOf(PlayerCount + 1))), PlayerCount);
    m_written = false;
    PlayerFileHandle = std::move(file);
}

void PlayerFile::ClosePlayerFile() {
    if (!PlayerFileHandle) return;
    const auto file = std::move(PlayerFileHandle);
    writeKept(*file);
    PlayerCount = countIn(file->length(), "holds");
    if (m_written) file->sync();
}

/// Keeps a list for reading, as so many whole records.
void PlayerFile::hold(std::string list, int count) {
    m_bytes = std::move(list);
    m_bytes.resize(static_cast<std::size_t>(offsetOf(count + 1)));
}

/// The number of records in m_bytes.
int PlayerFile::held() const {
    return static_cast<int>(m_bytes.size() / kRecordLength);
}

void PlayerFile::checkNumber(int number, int last) const {
    if (number >= 1 && number <= last) return;
    throw FileError{PlayerFileName + " holds " + std::to_string(held()) +
                    " players. There is no player " + std::to_string(number) + " among them."};
}

void PlayerFile::readRecord(int number) {
    checkNumber(number, held());
    unpackRecord(recordIn(m_bytes, number), CurrentRecord);
}

void PlayerFile::keepRecord(int number) {
    checkNumber(number, std::min(held() + 1, kMostPlayers));
    const auto record = packRecord(CurrentRecord);
    const auto offset = static_cast<std::size_t>(offsetOf(number));
    m_bytes.resize(std::max(m_bytes.size(), offset + kRecordLength));
    m_bytes.replace(offset, kRecordLength, record.data(), record.size());
    m_kept.push_back(number);
}

void PlayerFile::writeKept(RandomAccessFile& file) {
    // Whatever fails is not tried again: it has been reported then.
    for (const int number : std::exchange(m_kept, {})) {
        file.write(offsetOf(number), recordIn(m_bytes, number));
        m_written = true;
    }
}

void PlayerFile::writeRecord(int number) {
    keepRecord(number);
    writeKept(*PlayerFileHandle);
}

std::vector<PlayerRecord> PlayerFile::records() {
    std::vector<PlayerRecord> all;
    for (int number = 1; number <= held(); ++number) {
        readRecord(number);
        all.push_back(CurrentRecord);
    }
    return all;
}

bool PlayerFile::NameAlreadyExists(std::string_view name) {
    for (int number = 1; number <= PlayerCount; ++number) {
        readRecord(number);
        if (nameOf(CurrentRecord) == trimBlanks(name)) return true;
    }
    return false;
}

std::string PlayerFile::ranked(std::span<const int> recordNumbers) {
    std::string list(recordNumbers.size() * kRecordLength, '\0');
    auto record = list.begin();
    std::int16_t place = 0;
    for (const int number : recordNumbers) {
        readRecord(number);
        ++place;
        // Quirk "rank is the row": those who have none are counted, too.
        CurrentRecord.Ranking = CurrentRecord.SetsPlayed >= 1 ? place : std::int16_t{0};
        packRecord(CurrentRecord, std::span<char, kRecordLength>{record, kRecordLength});
        record += kLength;
    }
    return list;
}

/// Quirk "leftover records": adds what an older temporary file has beyond this list.
void PlayerFile::addLeftover(std::string& list) {
    const auto TempFileHandle = m_files.openLeftover(m_tempFileName);
    if (!TempFileHandle) return;
    const auto length = static_cast<std::size_t>(TempFileHandle->length());
    if (length <= list.size()) return;
    countIn(TempFileHandle->length(), "would hold");
    list += TempFileHandle->read(static_cast<std::int64_t>(list.size()), length - list.size());
}

void PlayerFile::rewrite(std::span<const int> recordNumbers) {
    std::string list = ranked(recordNumbers);
    addLeftover(list);
    m_files.replaceContent(PlayerFileName, list, m_tempFileName);
    const int count = countIn(static_cast<std::int64_t>(list.size()), "holds");
    hold(std::move(list), count);
    m_kept.clear();  // they are in it
}

std::vector<PlayerRecord> PlayerFile::readAll() {
    Session session{*this, Session::Access::ReadingWillDo};
    session.close();
    return records();
}

/// For a session that reading would do for until now. Where the file could be opened for nothing
/// else, this fails like any opening for changes.
void PlayerFile::wantChanges() {
    if (!PlayerFileHandle->isWritable()) OpenPlayerFile();
}

ListChange PlayerFile::addPlayer(std::string_view name) {
    Session session{*this, Session::Access::ReadingWillDo};
    if (NameAlreadyExists(name)) return ListChange::NameTaken;
    wantChanges();
    // Quirk "full list": records are counted in 16 bits.
    if (PlayerCount == kMostPlayers) return ListChange::ListFull;
    CurrentRecord = {};
    setName(CurrentRecord, name);
    writeRecord(PlayerCount + 1);
    session.close();
    return ListChange::Done;
}

/// For an open file.
bool PlayerFile::stillHolds(const ListedPlayer& player) {
    if (player.recordNumber < 1 || player.recordNumber > PlayerCount) return false;
    readRecord(player.recordNumber);
    return CurrentRecord.Name == player.record.Name;
}

ListChange PlayerFile::renamePlayer(const ListedPlayer& player, std::string_view name) {
    Session session{*this, Session::Access::ReadingWillDo};
    // Quirk "same name refused": the player's own name is one that is there.
    if (NameAlreadyExists(name)) return ListChange::NameTaken;
    wantChanges();
    if (!stillHolds(player)) return ListChange::Outdated;
    setName(CurrentRecord, name);
    writeRecord(player.recordNumber);
    session.close();
    return ListChange::Done;
}

ListChange PlayerFile::deletePlayer(const ListedPlayer& player) {
    Session session{*this};
    if (!stillHolds(player)) return ListChange::Outdated;
    std::vector<int> others;
    for (int other = 1; other <= PlayerCount; ++other)
        if (other != player.recordNumber) others.push_back(other);
    if (!others.empty()) rewrite(others);
    session.close();
    if (others.empty()) removeFiles();
    PlayerCount = held();  // in the new file; what was closed is the old one
    return ListChange::Done;
}

/// Nobody is left.
void PlayerFile::removeFiles() {
    m_files.remove(m_tempFileName);
    m_files.remove(PlayerFileName);
    m_bytes.clear();
}

}  // namespace skylob
