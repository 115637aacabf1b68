#pragma once

#include <QApplication>
#include <QPointer>

#include "app/CommandLine.h"
#include "app/SingleCopy.h"
#include "base/Clock.h"
#include "base/RandomInt.h"
#include "base/SeededRandom.h"
#include "base/StringTable.h"
#include "base/basSkylob.h"
#include "battle/BattleView.h"
#include "look/qt/QtShapes.h"
#include "platform/DiskFiles.h"
#include "platform/SystemClock.h"
#include "platform/qt/QtLinkOpener.h"
#include "platform/qt/QtPacer.h"
#include "platform/qt/QtSettingsStore.h"
#include "platform/qt/SdlSoundPlayer.h"
#include "players/PlayerFile.h"
#include "screen/qt/QtMessageBoxes.h"
#include "screen/qt/QtModalGuard.h"

namespace skylob {

class frmManual;
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
    enum class Event;
    struct Step;
    static const Step kOrderOfScreens[];

    /// Brings on the screen that follows.
    void after(Event event);

    /// When the form has hidden itself and reported by the signal, lets it go and the next one
    /// come.
    template <typename Form>
    void follow(Form* form, void (Form::*signal)(), Event event);

    /// Shows the screen where the one before it stood.
    void show(QWidget* screen);

    void showTitlePage();
    void showNewUser();
    void showPlayerList();
    void showManual();
    void showSkillLevel();
    void showBattle();
    void showRoundSummary();
    void showSetSummary();
    void showSummary(SummaryKind kind);
    void quitWhenSilent();
    void fail(const char* why);

    QtModalGuard m_modalGuard;
    SingleCopy m_singleCopy;
    SeededRandom m_random;
    SystemClock m_clock;
    QtPacer m_pacer;
    SdlSoundPlayer m_sounds;
    QtMessageBoxes m_boxes;
    QtSettingsStore m_settings;
    QtShapes m_shapes;
    QtLinkOpener m_links;
    DiskFiles m_files;
    StringTable m_strings;
    basSkylob m_shared;
    PlayerFile m_playerFile;
    QPointer<QWidget> m_screen;  ///< title page, player list or battle; it may have just left
    QPointer<frmPlayGame> m_battle;
    QPointer<frmManual> m_manual;
};

}  // namespace skylob
