#include "app/qt/ReplayProgram.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

#include "app/qt/QtProgramEnd.h"
#include "base/Settings.h"
#include "base/Volume.h"
#include "battle/qt/QtMenGauge.h"
#include "battle/qt/frmPlayGame.h"
#include "controls/qt/GlintButtonAccessible.h"
#include "look/qt/QtLook.h"
#include "platform/qt/QtMotionPortal.h"
#include "screen/qt/QtSpokenControls.h"
#include "screen/qt/QtWindowPlaces.h"

namespace skylob {

ReplayProgram::ReplayProgram(int& argc, char** argv, const CommandLine& commandLine,
                             const BattleRecord& record)
    : QApplication{argc, argv},
      m_shapes{programDrawings()},
      m_plainWindows{m_windowsFile, commandLine},
      m_shared{startOf(record)},
      m_random{record.header.seed},
      m_replay{record, m_random} {
    GlintButtonAccessible::install();
    QtScreen::installAccessible();
    installSpokenControls();
    QtMenGauge::installAccessible();
    setApplicationName(QStringLiteral("Skylob"));
    setWindowIcon(programIcon());
    setDesktopFileName(QStringLiteral("skylob"));
    setQuitOnLastWindowClosed(false);
    m_sounds.setVolume(recallVolume(m_windows));
    m_shared.ScreenSize = settings::readScreenSize(m_settings);
    if (commandLine.reducedMotion) m_shared.motion = Motion::Reduced;
    putOptions(record, m_options);
}

ReplayProgram::~ReplayProgram() = default;

int ReplayProgram::run() {
    showBattle();
    if (m_shared.motion == Motion::Full)
        askForMotion(this, [this](Motion motion) { m_shared.motion = motion; });
    const int status = exec();
    closeSounds(m_sounds, status);
    return status == EXIT_SUCCESS && m_replay.difference() ? EXIT_FAILURE : status;
}

bool ReplayProgram::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        endWithError(m_boxes, error.what());
    }
}

void ReplayProgram::showBattle() {
    constexpr auto kMemory = PlaceMemory::OnAnyDisplay;
    const QSize room = roomForScreen(QStringLiteral("frmPlayGame"), m_windows, nullptr, kMemory);
    const BattlePorts ports{m_random, m_clock, m_pacer, m_sounds, m_agreeing, m_options, &m_replay};
    m_battle = std::make_unique<frmPlayGame>(
        QtScreenPorts{m_shared, m_options, m_shapes, m_windows}, ports, room);
    m_battle->watch(m_replay);
    connect(m_battle.get(), &frmPlayGame::setDecided, this, &ReplayProgram::tellHowItEnded);
    connect(m_battle.get(), &frmPlayGame::replayEnded, this, &ReplayProgram::tellHowItEnded);
    connect(m_battle.get(), &frmPlayGame::battleClosed, this, [this] { quitWhenSilent(m_sounds); });
    bringToPlace(*m_battle, m_windows, nullptr, kMemory);
    m_battle->show();
}

void ReplayProgram::tellHowItEnded() {
    const auto& difference = m_replay.difference();
    if (!difference) {
        const std::string what = m_replay.wasLeftHere() ? "The set was left here.\r\n\r\n"
                                                        : "The recorded set is over.\r\n\r\n";
        m_boxes.show({"Replay", what + m_battle->battle().panel().score});
        return;
    }
    const auto& [line, recorded, played] = *difference;
    const std::string where = "Line " + std::to_string(line) + " of the recording";
    std::fprintf(stderr, "skylob: line %zu: recorded '%s', played '%s'\n", line, recorded.c_str(),
                 played.c_str());
    m_boxes.show(
        {"Replay",
         where + " is played differently.\r\n\r\nRecorded: " + recorded + "\r\nPlayed: " + played,
         BoxIcon::Critical});
}

}  // namespace skylob
