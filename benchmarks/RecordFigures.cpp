#include "RecordFigures.h"

#include <QImage>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>

#include "look/qt/QtLook.h"
#include "platform/DiskFiles.h"
#include "players/Ranking.h"
#include "players/qt/QtPlayerGrid.h"

namespace skylob {

namespace {

/// A folder with a list in it, for as long as the object lives. It is in memory, where nobody waits
/// until files are safe.
class ListFolder {
  public:
    explicit ListFolder(int players);
    ~ListFolder() { std::filesystem::remove_all(m_folder); }
    ListFolder(const ListFolder&) = delete;
    ListFolder& operator=(const ListFolder&) = delete;

    std::string list() const { return m_folder + "/Skylob.Data"; }

  private:
    std::string m_folder = "/dev/shm/skylob-XXXXXX";
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

ListFolder::ListFolder(int players) {
    if (!mkdtemp(m_folder.data())) throw std::runtime_error{"no folder for the list"};
    writeList(list(), players);
}

}  // namespace

template <int players>
void recordSet(benchmark::State& state) {
    const ListFolder folder{players};
    DiskFiles files;
    PlayerFile file{files, folder.list()};
    basSkylob shared;
    shared.PlayerName = {"Player 1", "Player 2"};
    shared.RoundsWon = {3, 2};
    shared.TotalKills = {250, 180};
    shared.Winner = 1;
    for (auto _ : state) RecordSetResults(file, shared);
}

template <int players>
void fillGrid(benchmark::State& state) {
    const ListFolder folder{players};
    DiskFiles files;
    PlayerFile file{files, folder.list()};
    QWidget window;
    applyLook(window);
    QtPlayerGrid grid{&window};
    grid.setFixedSize(580, 256);
    QImage screen{grid.size(), QImage::Format_RGB32};
    for (auto _ : state) {
        grid.fill(file.readAll());
        grid.render(&screen);
    }
}

template void recordSet<10>(benchmark::State&);
template void recordSet<1000>(benchmark::State&);
template void recordSet<32767>(benchmark::State&);
template void fillGrid<32767>(benchmark::State&);

}  // namespace skylob
