#include "players/PlayerFile.h"

#include <algorithm>
#include <filesystem>
#include <utility>
#include <vector>

#include "base/TrimBlanks.h"

namespace skylob {

namespace {

constexpr int kMostPlayers = 32767;

std::int64_t offsetOf(int number) {
    return (number - 1) * static_cast<std::int64_t>(kRecordLength);
}

}  // namespace

PlayerFile::PlayerFile(FileSystem& files, std::string fileName)
    : m_files{files},
      PlayerFileName{std::move(fileName)},
      m_tempFileName{std::filesystem::path{PlayerFileName}.replace_filename("TempFile.$$$")} {
}

int PlayerFile::measure(const RandomAccessFile& file) const {
    constexpr std::int64_t length = kRecordLength;
    const std::int64_t count = (file.length() + length / 2) / length;
    if (count > kMostPlayers) {
        throw FileError{PlayerFileName + " would hold more than " + std::to_string(kMostPlayers) +
                        " players, which is too many."};
    }
    return static_cast<int>(count);
}

void PlayerFile::OpenPlayerFile() {
    ClosePlayerFile();
    auto file = m_files.open(PlayerFileName);
    PlayerCount = measure(*file);
    const auto length = static_cast<std::size_t>(offsetOf(PlayerCount + 1));
    m_bytes = file->read(0, length);
    m_bytes.resize(length);
    PlayerFileHandle = std::move(file);
}

void PlayerFile::ClosePlayerFile() {
    if (!PlayerFileHandle) return;
    const auto file = std::move(PlayerFileHandle);
    const bool written = std::exchange(m_written, false);
    PlayerCount = measure(*file);
    if (written) file->sync();
}

void PlayerFile::abandon() noexcept {
    try {
        ClosePlayerFile();
    } catch (const FileError&) {
        // Another error is on its way already.
    }
}

void PlayerFile::readRecord(int number) {
    const auto offset = static_cast<std::size_t>(offsetOf(number));
    CurrentRecord = unpackRecord(std::string_view{m_bytes}.substr(offset, kRecordLength));
}

void PlayerFile::writeRecord(int number) {
    if (number > kMostPlayers) {
        throw FileError{PlayerFileName + " holds " + std::to_string(kMostPlayers) +
                        " players. No more can be added."};
    }
    const auto record = packRecord(CurrentRecord);
    const std::string_view bytes{record.data(), record.size()};
    PlayerFileHandle->write(offsetOf(number), bytes);
    m_written = true;
    const auto offset = static_cast<std::size_t>(offsetOf(number));
    if (m_bytes.size() < offset + kRecordLength) m_bytes.resize(offset + kRecordLength);
    m_bytes.replace(offset, kRecordLength, bytes);
}

std::vector<PlayerRecord> PlayerFile::readAll() {
    OpenPlayerFile();
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

std::unique_ptr<RandomAccessFile> PlayerFile::writeTempFile(std::span<const int> recordNumbers) {
    auto TempFileHandle = m_files.open(m_tempFileName);
    std::string list;
    std::int16_t place = 0;
    for (const int number : recordNumbers) {
        readRecord(number);
        ++place;
        CurrentRecord.Ranking = CurrentRecord.SetsPlayed >= 1 ? place : std::int16_t{0};
        const auto record = packRecord(CurrentRecord);
        list.append(record.data(), record.size());
    }
    TempFileHandle->write(0, list);
    measure(*TempFileHandle);  // an older one may have been too long
    TempFileHandle->sync();
    return TempFileHandle;
}

void PlayerFile::rewrite(std::span<const int> recordNumbers) {
    writeTempFile(recordNumbers).reset();
    ClosePlayerFile();
    m_files.replace(m_tempFileName, PlayerFileName);
}

void PlayerFile::addPlayer(std::string_view name) {
    OpenPlayerFile();
    const ClosedAtEnd closed{*this};
    CurrentRecord = {};
    setName(CurrentRecord, name);
    writeRecord(PlayerCount + 1);
    ClosePlayerFile();
}

void PlayerFile::renamePlayer(int number, std::string_view name) {
    OpenPlayerFile();
    const ClosedAtEnd closed{*this};
    readRecord(number);
    setName(CurrentRecord, name);
    writeRecord(number);
    ClosePlayerFile();
}

void PlayerFile::deletePlayer(int number) {
    OpenPlayerFile();
    const ClosedAtEnd closed{*this};
    std::vector<int> others;
    for (int other = 1; other <= PlayerCount; ++other)
        if (other != number) others.push_back(other);
    if (!others.empty()) return rewrite(others);
    writeTempFile(others).reset();
    ClosePlayerFile();
    m_files.remove(PlayerFileName);
    m_files.remove(m_tempFileName);
}

}  // namespace skylob
