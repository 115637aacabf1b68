#pragma once

#include <QApplication>
#include <QPointer>
#include <memory>

#include "app/CommandLine.h"
#include "app/PlainStart.h"
#include "app/SingleCopy.h"
#include "base/RandomInt.h"
#include "base/SeededRandom.h"
#include "base/StringTable.h"
#include "base/SummaryKind.h"
#include "base/basSkylob.h"
#include "battle/record/BattleRecorder.h"
#include "look/qt/QtShapes.h"
#include "platform/DiskFiles.h"
#include "platform/SystemClock.h"
#include "platform/qt/QtLinkOpener.h"
#include "platform/qt/QtPacer.h"
#include "platform/qt/QtSettingsStore.h"
#include "platform/qt/QtSoundPlayer.h"
#include "players/PlayerFile.h"
#include "screen/qt/QtMessageBoxes.h"
#include "screen/qt/QtModalGuard.h"
#include "screen/qt/QtRepeatGuard.h"
#include "screen/qt/QtScreen.h"
#include "screen/qt/QtWindowPlaces.h"

namespace skylob {

class frmManual;
class frmPlayGame;
class RecordFile;

/// The running program: owns what all screens share, and decides which screen follows which.
class Application : public QApplication {
    Q_OBJECT

  public:
    /// `argc` and `argv` as main gets them, and what is remembered of windows; all to outlive the
    /// object.
    Application(int& argc, char** argv, const CommandLine& commandLine, WindowStore& windows);
    ~Application() override;

    /// Has every set written down from now on; `file` must outlive the object. To be called before
    /// run().
    void record(RecordFile& file);

    /// Shows the first screen and serves events until the last one has gone. Returns the exit
    /// status.
    int run();

    /// The one place where errors that nobody handled arrive: says what failed, ends the
    /// program with status 1.
    bool notify(QObject* receiver, QEvent* event) override;

  private:
    enum class Event;

    /// Brings on the screen that follows, and returns when it is shown, or when a modal one has
    /// gone.
    void after(Event event);

    /// Has the event happen whenever the screen reports by the signal.
    template <typename Screen>
    void on(Screen* screen, void (Screen::*signal)(), Event event);

    /// The same for the last that the screen reports, which has hidden itself: lets it go, too.
    template <typename Screen>
    void onLeaving(Screen* screen, void (Screen::*signal)(), Event event);

    /// Shows the screen where it was left or over the one before it.
    void show(QtScreen* screen, PlaceMemory memory = PlaceMemory::OnItsDisplay);

    /// Shows the modal screen over the one that is shown, and returns when it has gone.
    void showOver(QtScreen& screen);

    /// Shows a summary of the battle beside what is to be seen of that, and returns when it has
    /// gone.
    void showBeside(QtScreen& summary);

    void learnMotion();
    void showTitlePage();
    void showNewUser();
    void showPlayerList();
    void showManual();
    void showRules();
    void showSkillLevel();
    void showBattle();
    void showSummary(SummaryKind kind);
    void endProgram();

    QtModalGuard m_modalGuard;
    QtRepeatGuard m_repeatGuard;
    const QtShapes m_shapes;
    QtMessageBoxes m_boxes{m_shapes};
    SingleCopy m_singleCopy;
    SeededRandom m_random;
    SystemClock m_clock;
    QtPacer m_pacer;
    QtSoundPlayer m_sounds;
    QtSettingsStore m_settings;
    PlainStart m_windows;
    const int m_scale;  ///< of this run, in percent
    QtLinkOpener m_links;
    DiskFiles m_files;
    const StringTable m_texts;
    basSkylob m_shared;
    PlayerFile m_playerFile;
    const QtScreenPorts m_screenPorts{m_shared, m_settings, m_shapes, m_windows};
    QPointer<QtScreen> m_screen;  ///< title page, player list or battle; it may have just left
    QPointer<frmPlayGame> m_battle;
    QPointer<frmManual> m_manual;
    std::unique_ptr<BattleRecorder> m_recorder;  ///< null where nobody wants it
};

}  // namespace skylob
