#include "app/qt/Application.h"

#include <cstdlib>
#include <exception>

#include "app/Main.h"
#include "app/StartScale.h"
#include "app/qt/QtProgramEnd.h"
#include "app/qt/QtProgramTexts.h"
#include "base/NullPorts.h"
#include "base/Volume.h"
#include "battle/qt/QtMenGauge.h"
#include "battle/qt/frmPlayGame.h"
#include "battle/record/RecordFile.h"
#include "controls/qt/GlintButtonAccessible.h"
#include "look/qt/QtLook.h"
#include "manual/qt/frmManual.h"
#include "platform/qt/QtMotionPortal.h"
#include "players/qt/QtPlayerGrid.h"
#include "players/qt/frmGetPlayers.h"
#include "players/qt/frmGetSkillLevel.h"
#include "players/qt/frmSummary.h"
#include "screen/qt/QtLinkLabel.h"
#include "screen/qt/QtPlacement.h"
#include "screen/qt/QtSpokenControls.h"
#include "title/qt/frmNewUser.h"
#include "title/qt/frmTitlePage.h"

namespace skylob {

/// What leads from one screen to the next.
enum class Application::Event {
    ProgramStarted,
    NewUserCame,
    TitlePageContinued,
    TitlePageClosed,
    HelpWanted,
    RulesWanted,
    ComputerChallenged,
    PlayersChosen,
    RoundDecided,
    SetDecided,
    BattleLeft,
    PlayerListLeft
};

/// The order of screens, all of it: the screens themselves know nothing of each other.
void Application::after(Event event) {
    switch (event) {
        case Event::ProgramStarted:
            return showTitlePage();
        case Event::NewUserCame:
            return showNewUser();  // over the title page
        case Event::TitlePageContinued:
            return showPlayerList();
        case Event::TitlePageClosed:
            return endProgram();
        case Event::HelpWanted:
            return showManual();  // beside the player list
        case Event::RulesWanted:
            return showRules();  // over the battle
        case Event::ComputerChallenged:
            return showSkillLevel();  // over the player list
        case Event::PlayersChosen:
            return showBattle();
        case Event::RoundDecided:
            return showSummary(SummaryKind::Round);  // over the battle
        case Event::SetDecided:
            return showSummary(SummaryKind::Set);  // over the battle
        case Event::BattleLeft:
            return showPlayerList();
        case Event::PlayerListLeft:
            return endProgram();
    }
}

Application::Application(int& argc, char** argv, const CommandLine& commandLine,
                         WindowStore& windows)
    : QApplication{argc, argv},
      m_shapes{programDrawings()},
      m_random{commandLine.seed},
      m_windows{windows, commandLine},
      m_scale{startScale(commandLine, windows)},
      m_texts{programTexts()},
      m_playerFile{m_files, m_shared.PlayerFileName} {
    GlintButtonAccessible::install();
    QtLinkLabel::installAccessible();
    QtScreen::installAccessible();
    installSpokenControls();
    QtMenGauge::installAccessible();
    QtPlayerGrid::installAccessible();
    m_sounds.setVolume(recallVolume(m_windows));
    setApplicationName(QStringLiteral("Skylob"));
    setDesktopFileName(QStringLiteral("skylob"));  // by which a desktop knows the windows' icon
    // One screen may close before the next is shown.
    setQuitOnLastWindowClosed(false);
    if (commandLine.reducedMotion) m_shared.motion = Motion::Reduced;
}

Application::~Application() {
    delete m_manual;
}

void Application::record(RecordFile& file) {
    m_recorder = std::make_unique<BattleRecorder>(
        m_random,
        [&file](const std::string& text, bool startsSet) { file.write(text, startsSet); });
}

int Application::run() {
    try {
        if (!Main(m_shared, m_singleCopy.copies(), m_files, m_boxes)) return EXIT_FAILURE;
        after(Event::ProgramStarted);
        // While the title page is on its way to the display.
        setWindowIcon(programIcon());
        learnMotion();
    } catch (const std::exception& error) {
        endWithError(m_boxes, error.what());
    }
    const int status = exec();
    closeSounds(m_sounds, status);
    return status;
}

void Application::learnMotion() {
    if (m_shared.motion == Motion::Reduced) return;
    askForMotion(this, [this](Motion motion) { m_shared.motion = motion; });
}

bool Application::notify(QObject* receiver, QEvent* event) {
    // An exception must not travel through the toolkit's event loop.
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        endWithError(m_boxes, error.what());
    }
}

template <typename Screen>
void Application::on(Screen* screen, void (Screen::*signal)(), Event event) {
    connect(screen, signal, this, [this, event] { after(event); });
}

template <typename Screen>
void Application::onLeaving(Screen* screen, void (Screen::*signal)(), Event event) {
    connect(screen, signal, screen, &QObject::deleteLater);  // it is still at work on this event
    on(screen, signal, event);
}

void Application::show(QtScreen* screen, PlaceMemory memory) {
    bringToPlace(*screen, m_windows, m_screen, memory);
    m_screen = screen;
    screen->show();
}

void Application::showOver(QtScreen& screen) {
    fitToDisplayOf(screen, m_screen);
    centreOver(screen, m_screen);
    screen.showModal(m_screen);
}

void Application::showBeside(QtScreen& summary) {
    fitToDisplayOf(summary, m_battle);
    placeClearOf(summary, *m_battle, m_battle->toBeSeen());
    summary.showModal(m_battle);
}

void Application::showTitlePage() {
    auto* page = new frmTitlePage{m_screenPorts, m_clock, m_sounds, m_links, m_boxes, m_scale};
    on(page, &frmTitlePage::newUserCame, Event::NewUserCame);
    onLeaving(page, &frmTitlePage::continued, Event::TitlePageContinued);
    onLeaving(page, &frmTitlePage::closed, Event::TitlePageClosed);
    show(page);
}

void Application::showNewUser() {
    frmNewUser welcome{m_screenPorts, m_texts.text(kOverviewText)};
    showOver(welcome);
}

void Application::showPlayerList() {
    auto* list =
        new frmGetPlayers{m_screenPorts, {m_playerFile, m_clock, m_boxes, m_sounds, m_links}};
    on(list, &frmGetPlayers::helpWanted, Event::HelpWanted);
    on(list, &frmGetPlayers::computerChallenged, Event::ComputerChallenged);
    onLeaving(list, &frmGetPlayers::battleChosen, Event::PlayersChosen);
    onLeaving(list, &frmGetPlayers::programLeft, Event::PlayerListLeft);
    show(list);
}

void Application::showManual() {
    if (!m_manual) {
        m_manual = new frmManual{m_screenPorts, m_texts, m_links, m_boxes};
        connect(m_manual, &frmManual::returned, m_manual, &QObject::deleteLater);
        fitToDisplayOf(*m_manual, m_screen);
        centreOver(*m_manual, m_screen);
        m_manual->show();
    }
    m_manual->setWindowState(m_manual->windowState() & ~Qt::WindowMinimized);
    m_manual->raise();
    m_manual->activateWindow();
}

void Application::showRules() {
    frmManual rules{m_screenPorts, m_texts, m_links, m_boxes, ManualTopic::Rules};
    showOver(rules);
}

void Application::showSkillLevel() {
    frmGetSkillLevel question{m_screenPorts};
    fitToDisplayOf(question, m_screen);
    centreOnDisplay(question, m_screen);
    question.showModal(m_screen);
}

void Application::showBattle() {
    constexpr auto kMemory = PlaceMemory::OnAnyDisplay;
    const QSize room = roomForScreen(QStringLiteral("frmPlayGame"), m_windows, m_screen, kMemory);
    m_battle = new frmPlayGame{
        m_screenPorts,
        {m_random, m_clock, m_pacer, m_sounds, m_boxes, m_settings, m_recorder.get()},
        room};
    on(m_battle.get(), &frmPlayGame::roundDecided, Event::RoundDecided);
    on(m_battle.get(), &frmPlayGame::rulesWanted, Event::RulesWanted);
    on(m_battle.get(), &frmPlayGame::setDecided, Event::SetDecided);
    connect(m_battle, &frmPlayGame::volumeChosen, this,
            [this](int percent) { m_sounds.setVolume(percent); });
    onLeaving(m_battle.get(), &frmPlayGame::battleClosed, Event::BattleLeft);
    show(m_battle, kMemory);
}

void Application::showSummary(SummaryKind kind) {
    SilentSounds silence;
    SoundPlayer& sounds =
        m_battle->battle().state().SoundOn ? static_cast<SoundPlayer&>(m_sounds) : silence;
    frmSummary summary{
        m_screenPorts, kind, {m_clock, m_random, sounds, m_boxes, m_texts, m_playerFile}};
    showBeside(summary);
}

void Application::endProgram() {
    if (m_manual) m_manual->hide();  // not deleted yet: it may be at work on a print
    m_singleCopy.release();
    quitWhenSilent(m_sounds);
}

}  // namespace skylob
