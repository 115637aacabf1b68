#pragma once

#include <QApplication>
#include <QPointer>
#include <memory>

#include "app/CommandLine.h"
#include "app/PlainStart.h"
#include "app/ReplayWindows.h"
#include "base/NullPorts.h"
#include "base/SeededRandom.h"
#include "battle/record/BattleReplay.h"
#include "look/qt/QtShapes.h"
#include "platform/SystemClock.h"
#include "platform/qt/QtPacer.h"
#include "platform/qt/QtSettingsStore.h"
#include "platform/qt/QtSoundPlayer.h"
#include "platform/qt/QtWindowStore.h"
#include "screen/qt/QtMessageBoxes.h"
#include "screen/qt/QtModalGuard.h"
#include "screen/qt/QtRepeatGuard.h"

namespace skylob {

class frmPlayGame;

/// The program when it shows a recorded set: the battle screen alone, to be watched. It knows no
/// player file, writes no settings, and may run beside the game.
class ReplayProgram : public QApplication {
    Q_OBJECT

  public:
    /// `argc` and `argv` as main gets them, and `record`, must outlive the object.
    ReplayProgram(int& argc, char** argv, const CommandLine& commandLine,
                  const BattleRecord& record);
    ~ReplayProgram() override;

    /// Shows the set. Returns the exit status: 1 where it was not played as it is recorded.
    int run();

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void showBattle();
    void tellHowItEnded();

    QtModalGuard m_modalGuard;
    QtRepeatGuard m_repeatGuard;
    const QtShapes m_shapes;
    QtMessageBoxes m_boxes{m_shapes};
    SystemClock m_clock;
    QtPacer m_pacer;
    QtSoundPlayer m_sounds;
    const QtSettingsStore m_settings;
    QtWindowStore m_windowsFile;
    PlainStart m_plainWindows;
    ReplayWindows m_windows{m_plainWindows};
    AgreeingBoxes m_agreeing;  ///< in place of the players who were asked
    MemorySettings m_options;  ///< that the recorded set began with
    basSkylob m_shared;
    SeededRandom m_random;
    BattleReplay m_replay;
    std::unique_ptr<frmPlayGame> m_battle;
};

}  // namespace skylob
