#include "RecordFigures.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

#include "app/DiskFiles.h"
#include "players/Ranking.h"

namespace skylob {

namespace {

/// The disk's files, of which nobody waits until they are safe.
class UnsyncedFiles : public FileSystem {
  public:
    std::unique_ptr<RandomAccessFile> open(const std::string& name) override {
        return std::make_unique<File>(m_disk.open(name));
    }
    void remove(const std::string& name) override { m_disk.remove(name); }
    void replace(const std::string& from, const std::string& to) override {
        std::filesystem::rename(from, to);
    }

  private:
    class File : public RandomAccessFile {
      public:
        explicit File(std::unique_ptr<RandomAccessFile> file) : m_file{std::move(file)} {}
        std::int64_t length() const override { return m_file->length(); }
        std::string read(std::int64_t offset, std::size_t count) const override {
            return m_file->read(offset, count);
        }
        void write(std::int64_t offset, std::string_view bytes) override {
            m_file->write(offset, bytes);
        }
        void sync() override {}

      private:
        std::unique_ptr<RandomAccessFile> m_file;
    };

    DiskFiles m_disk;
};

void writeList(const std::string& path, int players) {
    std::ofstream file{path, std::ios::binary};
    std::minstd_rand chance{1};
    for (int number = 1; number <= players; ++number) {
        PlayerRecord record;
        setName(record, "Player " + std::to_string(number));
        record.SetsPlayed = static_cast<std::int16_t>(chance() % 100);
        record.SetsWon = static_cast<std::int16_t>(record.SetsPlayed / (1 + number % 7));
        record.AverageScore = static_cast<std::int16_t>(chance() % 120);
        const auto bytes = packRecord(record);
        file.write(bytes.data(), bytes.size());
    }
}

}  // namespace

template <int players>
void recordSet(benchmark::State& state) {
    std::string folder = std::filesystem::temp_directory_path() / "skylob-XXXXXX";
    if (!mkdtemp(folder.data())) return state.SkipWithError("no folder for the list");
    writeList(folder + "/Skylob.Data", players);
    UnsyncedFiles files;
    PlayerFile file{files, folder + "/Skylob.Data"};
    basSkylob shared;
    shared.PlayerName = {"Player 1", "Player 2"};
    shared.RoundsWon = {3, 2};
    shared.TotalKills = {250, 180};
    shared.Winner = 1;
    for (auto _ : state) RecordSetResults(file, shared);
    std::filesystem::remove_all(folder);
}

template void recordSet<10>(benchmark::State&);
template void recordSet<1000>(benchmark::State&);
template void recordSet<32767>(benchmark::State&);

}  // namespace skylob
