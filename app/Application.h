#pragma once

#include <QApplication>
#include <memory>

#include "app/Clock.h"
#include "app/CommandLine.h"
#include "app/QtMessageBoxes.h"
#include "app/QtPacer.h"
#include "app/QtSettingsStore.h"
#include "app/QtShapes.h"
#include "app/RandomInt.h"
#include "app/SdlSoundPlayer.h"
#include "app/basSkylob.h"
#include "battle/BattleView.h"

namespace skylob {

class frmPlayGame;

/// The running program: owns what all screens share, and decides which screen follows which.
class Application : public QApplication {
    Q_OBJECT

  public:
    /// `argc` and `argv` as main gets them, to outlive the object.
    Application(int& argc, char** argv, const CommandLine& commandLine);
    ~Application() override;

    /// Shows the first screen and serves events until the last one has gone. Returns the exit
    /// status.
    int run();

    /// The one place where errors that nobody handled arrive: says what failed, ends the
    /// program with status 1.
    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void showBattle();
    void showSummary(SummaryKind kind);
    void fail(const char* why);

    SeededRandom m_random;
    SystemClock m_clock;
    QtPacer m_pacer;
    SdlSoundPlayer m_sounds;
    QtMessageBoxes m_boxes;
    QtSettingsStore m_settings;
    QtShapes m_shapes;
    basSkylob m_shared;
    std::unique_ptr<frmPlayGame> m_battle;
};

}  // namespace skylob
