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
    if (count > kMostPlayers) {
        throw FileError{PlayerFileName + ' ' + holds + " more than " +
                        std::to_string(kMostPlayers) + " players, which is too many."};
    }
    return static_cast<int>(count);
}

void PlayerFile::OpenPlayerFile() {
    ClosePlayerFile();
    take(m_files.open(PlayerFileName));
}

void PlayerFile::take(std::unique_ptr<RandomAccessFile> file) {
    PlayerCount = countIn(file->length(), "holds");
    const auto length = static_cast<std::size_t>(offsetOf(PlayerCount + 1));
    m_bytes = file->read(0, length);
    m_bytes.resize(length);
    m_kept.clear();
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

void PlayerFile::abandon() noexcept {
    try {
        ClosePlayerFile();
    } catch (const FileError&) {
        // Another error is on its way already.
    }
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
    CurrentRecord = unpackRecord(recordIn(m_bytes, number));
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

std::vector<PlayerRecord> PlayerFile::readAll() {
    ClosePlayerFile();
    take(m_files.openForReading(PlayerFileName));
    std::vector<PlayerRecord> records;
    for (int number = 1; number <= PlayerCount; ++number) {
        readRecord(number);
        records.push_back(CurrentRecord);
    }
    ClosePlayerFile();
    return records;
}

bool PlayerFile::NameAlreadyExists(std::string_view name) {
    const auto records = readAll();
    return std::any_of(records.begin(), records.end(), [name](const PlayerRecord& record) {
        return nameOf(record) == trimBlanks(name);
    });
}

std::string PlayerFile::ranked(std::span<const int> recordNumbers) {
    std::string list;
    std::int16_t place = 0;
    for (const int number : recordNumbers) {
        readRecord(number);
        ++place;
        CurrentRecord.Ranking = CurrentRecord.SetsPlayed >= 1 ? place : std::int16_t{0};
        const auto record = packRecord(CurrentRecord);
        list.append(record.data(), record.size());
    }
    return list;
}

/// Adds what an older temporary file has beyond this list.
void PlayerFile::addLeftover(std::string& list) {
    const auto older = m_files.openLeftover(m_tempFileName);
    if (!older) return;
    const auto length = static_cast<std::size_t>(older->length());
    if (length <= list.size()) return;
    countIn(older->length(), "would hold");
    list += older->read(static_cast<std::int64_t>(list.size()), length - list.size());
}

void PlayerFile::rewrite(std::span<const int> recordNumbers) {
    std::string list = ranked(recordNumbers);
    addLeftover(list);
    m_files.replaceContent(PlayerFileName, list, m_tempFileName);
    m_kept.clear();  // they are in it
    ClosePlayerFile();
}

bool PlayerFile::addPlayer(std::string_view name) {
    OpenPlayerFile();
    const ClosedAtEnd closed{*this};
    if (PlayerCount == kMostPlayers) return false;
    CurrentRecord = {};
    setName(CurrentRecord, name);
    writeRecord(PlayerCount + 1);
    ClosePlayerFile();
    return true;
}

/// For an open file.
bool PlayerFile::stillHolds(const ListedPlayer& player) {
    if (player.recordNumber < 1 || player.recordNumber > PlayerCount) return false;
    readRecord(player.recordNumber);
    return CurrentRecord.Name == player.record.Name;
}

bool PlayerFile::renamePlayer(const ListedPlayer& player, std::string_view name) {
    OpenPlayerFile();
    const ClosedAtEnd closed{*this};
    if (!stillHolds(player)) return false;
    setName(CurrentRecord, name);
    writeRecord(player.recordNumber);
    ClosePlayerFile();
    return true;
}

bool PlayerFile::deletePlayer(const ListedPlayer& player) {
    OpenPlayerFile();
    const ClosedAtEnd closed{*this};
    if (!stillHolds(player)) return false;
    std::vector<int> others;
    for (int other = 1; other <= PlayerCount; ++other)
        if (other != player.recordNumber) others.push_back(other);
    if (!others.empty()) {
        rewrite(others);
        return true;
    }
    ClosePlayerFile();
    m_files.remove(m_tempFileName);
    m_files.remove(PlayerFileName);
    return true;
}

}  // namespace skylob
