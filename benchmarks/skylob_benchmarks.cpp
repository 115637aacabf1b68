// What the game's inner work costs, in one table; `run` starts it on a display of its own.

#include <QApplication>
#include <QWindow>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "FigureTable.h"
#include "RecordFigures.h"
#include "base/SeededRandom.h"
#include "battle/HeadlessBattle.h"
#include "battle/light/FieldLayer.h"
#include "battle/qt/QtGunDrawings.h"
#include "battle/qt/frmPlayGameLayout.h"
#include "battle/qt/picGameField.h"
#include "controls/TransferPicture.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtPropertyBagFile.h"
#include "look/qt/QtLook.h"
#include "look/qt/QtShapes.h"
#include "platform/CountedWait.h"
#include "platform/qt/QtPacer.h"
#include "platform/qt/QtPictureTransport.h"

namespace skylob {

namespace {

constexpr int kWidth = 984, kHeight = 512;  // the field on the screen of normal size
constexpr int kGroundLineWidth = 2;
constexpr int kRounds = 10;
constexpr int kGameSpeed = 50;
constexpr double kNLogN = 32767 * 15.0 / (1000 * 9.966);
constexpr int kManyCounts = 10'000'000;
constexpr double kCount = 0.5e-9;  // the seconds that a count lasts

void fillPixels(benchmark::State& state) {
    std::vector<std::uint32_t> pixels(kWidth * kHeight);
    std::uint32_t value = 0;
    for (auto _ : state) {
        std::fill(pixels.begin(), pixels.end(), ++value);
        benchmark::ClobberMemory();
    }
}

void turnGenerator(benchmark::State& state) {
    SeededRandom random{1};
    for (auto _ : state)
        for (int turn = 0; turn < 1'000'000; ++turn) benchmark::DoNotOptimize(random.next());
}

void newBattlefield(benchmark::State& state) {
    SeededRandom random{1};
    Battlefield field;
    for (auto _ : state) generateBattlefield(field, random, 1, kRounds);
}

template <int dotScale>
void drawnBattlefield(benchmark::State& state) {
    SeededRandom random{1};
    Battlefield field;
    FieldPicture picture;
    picture.resize(kWidth * dotScale, kHeight * dotScale, dotScale);
    const auto [width, height] = picture.pieceSize();
    const auto pixels = static_cast<std::size_t>(width * height);
    // Half transparent all over, the dearest kind of piece.
    for (const int side : {1, 2})
        picture.setPieceImage(side, {width, height, std::vector(pixels, 0x80406080u)});
    for (auto _ : state) {
        generateBattlefield(field, random, 1, kRounds);
        drawBattlefield(field, picture, kGroundLineWidth);
    }
}

void headlessSet(benchmark::State& state) {
    basSkylob players;
    players.PlayerName = {"Ada", std::string{kComputerName}};
    players.NumRounds = kRounds;
    std::uint64_t seed = 0;
    for (auto _ : state) {
        // No set is like another: the figure is the mean of many.
        HeadlessBattle set{players, ++seed};
        while (!set.isOver()) set.shoot(300 + 25 * (set.battle().shared().RoundShots[1] % 16), 72);
    }
}

enum class Light { Off, On };

/// A shell over a battlefield in a window of the normal size, on the present display. Every
/// flight is the same.
class Flight : private HeadlessView {
  public:
    /// The pacer must outlive it.
    Flight(Light light, Pacer& pacer) : m_animation{m_picture, *this, pacer} {
        m_layer.setOn(light == Light::On);
        const frmPlayGameLayout& layout = layoutForScreenSize(kNormalScreen);
        applyLook(m_window);
        m_window.setFixedSize(layout.screen);
        m_widget.setGeometry(layout.field);
        m_window.show();
        while (!m_window.windowHandle()->isExposed())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        m_widget.fitPicture(layout.field.size());
        SeededRandom random{1};
        generateBattlefield(m_state.field, random, 1, kRounds);
        drawBattlefield(m_state.field, m_picture, kGroundLineWidth);
        showField();
        QCoreApplication::processEvents();
    }

    /// Returns the number of half steps.
    int fly() {
        m_shows = 0;
        const Battlefield& field = m_state.field;
        const Launch launch{1, 330, 75, field.PieceX[1], field.PieceY[1], 0};
        flyShell(launch, field, Trail::None, m_animation, FlightDelayCount(kGameSpeed));
        return m_shows - 1;  // the landing is shown but not held
    }

  private:
    void showField() override {
        ++m_shows;
        m_widget.showChanges();
    }

    int m_shows = 0;
    QtShapes m_shapes{programDrawings()};
    FieldPicture m_picture;
    BattleState m_state;
    FieldAnimation m_animation;
    QtGunDrawings m_guns{m_shapes};
    FieldLayer m_layer{m_picture, m_animation.scene(), m_state, &m_guns};
    QWidget m_window;
    picGameField m_widget{m_picture, m_layer, m_shapes, &m_window};
};

template <typename AnyPacer, Light light>
void halfStep(benchmark::State& state) {
    AnyPacer pacer;
    Flight flight{light, pacer};
    const int halfSteps = flight.fly();
    while (state.KeepRunningBatch(halfSteps)) flight.fly();
}

void lateCount(benchmark::State& state) {
    // Without a start every wait is late, and nothing is left of it but the counting.
    while (state.KeepRunningBatch(kManyCounts)) CountedWait{}.run(kManyCounts);
}

void pictureTransfer(benchmark::State& state) {
    constexpr int kEdge = 64;
    const std::vector<std::uint8_t> picture(kEdge * kEdge * 3, 0x55);
    std::vector<std::uint8_t> face(picture.size(), 0xAA);
    for (auto _ : state) {
        // Grey is the dearest of the effects.
        TransferPicture({picture, kEdge, kEdge, kEdge * 3}, {face, kEdge, kEdge, kEdge * 3},
                        {.ghost = true, .greyscale = true}, Colour::fromBgr(0xC0C0C0));
        benchmark::ClobberMemory();
    }
}

enum class Button { AsItWas, Changed, NeverSo };

template <Button which>
void buttonRedraw(benchmark::State& state) {
    const QtShapes shapes{programDrawings()};
    GlintButton button{QStringLiteral("cmdShoot"), shapes, nullptr};
    button.design().readProperties(formBags(QStringLiteral("frmPlayGame")).bag("cmdShoot"));
    button.setFixedSize(layoutForScreenSize(kNormalScreen).cmdShoot.size());
    QImage screen{button.size(), QImage::Format_RGB32};
    std::uint32_t colour = 0;
    for (auto _ : state) {
        if (which == Button::Changed) button.setEnabled(!button.isEnabled());
        if (which == Button::NeverSo) button.design().setForeColor(++colour);
        button.render(&screen);
    }
}

const Figure kFigures[] = {
    {"fill 984 x 512 pixels", fillPixels},
    {"1,000,000 turns of the generator", turnGenerator},
    {"new battlefield, rules only", newBattlefield, Time::Spent, 0.6},
    {"new battlefield, drawn", drawnBattlefield<1>, Time::Spent, 12},
    {"new battlefield, drawn at pixel ratio 2", drawnBattlefield<2>, Time::Spent, 60},
    {"half step of flight: plot, show, restore", halfStep<InstantPacer, Light::Off>, Time::GoneBy},
    {"half step with the light over the field", halfStep<InstantPacer, Light::On>, Time::GoneBy,
     0.6},
    {"ten rounds without a screen", headlessSet, Time::Spent, 30},
    {"merging a 64 x 64 picture, grey", pictureTransfer, Time::Spent, 0.5},
    {"redraw of the shoot button", buttonRedraw<Button::AsItWas>, Time::Spent, 0.6},
    {"the same, when it has changed", buttonRedraw<Button::Changed>, Time::Spent, 0.6},
    {"the same, when it never was like that", buttonRedraw<Button::NeverSo>},
    {"recording a set, 10 players", recordSet<10>},
    {"recording a set, 1,000 players", recordSet<1000>},
    {"recording a set, 32,767 players", recordSet<32767>, Time::Spent, 150},
    {"the same, of n log n from 1,000", recordSet<32767>, Time::Spent, 1, 0, kNLogN,
     "recording a set, 1,000 players"},
    {"filling the grid, 32,767 players", fillGrid<32767>, Time::Spent, 100},
    {"one count, not held back by the clock", lateCount, Time::Spent, 1, 0, kCount},
    {"paced flight, of its nominal time", halfStep<QtPacer, Light::On>, Time::GoneBy, 1.05, 0.98,
     FlightDelayCount(kGameSpeed) * kCount},
};

}  // namespace

}  // namespace skylob

int main(int argc, char** argv) {
    skylob::sendPicturesInline();
    QApplication application{argc, argv};
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
    const auto& load = benchmark::CPUInfo::Get().load_avg;
    std::printf("On platform %s, with a load of %.2f from before:\n",
                qPrintable(QGuiApplication::platformName()), load.empty() ? 0 : load.front());
    return skylob::printFigures(skylob::kFigures) ? EXIT_SUCCESS : EXIT_FAILURE;
}
