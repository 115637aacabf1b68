#include "app/qt/Application.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <exception>

#include "app/Main.h"
#include "base/NullPorts.h"
#include "battle/HeadlessBattle.h"
#include "battle/qt/frmPlayGame.h"
#include "controls/qt/GlintButtonAccessible.h"
#include "manual/qt/frmManual.h"
#include "players/qt/frmGetPlayers.h"
#include "players/qt/frmGetSkillLevel.h"
#include "players/qt/frmSummary.h"
#include "screen/qt/QtLinkLabel.h"
#include "screen/qt/QtPlacement.h"
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
    ComputerChallenged,
    PlayersChosen,
    RoundDecided,
    SetDecided,
    BattleLeft,
    PlayerListLeft
};

struct Application::Step {
    Event event;
    void (Application::*next)();
};

/// The order of screens, all of it: the screens themselves know nothing of each other.
const Application::Step Application::kOrderOfScreens[] = {
    {Event::ProgramStarted, &Application::showTitlePage},
    {Event::NewUserCame, &Application::showNewUser},  // above the title page
    {Event::TitlePageContinued, &Application::showPlayerList},
    {Event::TitlePageClosed, &Application::quitWhenSilent},
    {Event::HelpWanted, &Application::showManual},              // beside the player list
    {Event::ComputerChallenged, &Application::showSkillLevel},  // above the player list
    {Event::PlayersChosen, &Application::showBattle},
    {Event::RoundDecided, &Application::showRoundSummary},  // above the battle
    {Event::SetDecided, &Application::showSetSummary},      // above the battle
    {Event::BattleLeft, &Application::showPlayerList},
    {Event::PlayerListLeft, &Application::quitWhenSilent},
};

namespace {

constexpr int kOverviewText = 1000;  ///< the manual's first topic

// How long the program's end waits for sounds: a sound system that hangs would never end.
constexpr std::chrono::milliseconds kPatienceWithSounds{3000}, kPatienceWithClosing{1000};

std::string resourceText(const QString& name) {
    QFile file{name};
    if (!file.open(QIODevice::ReadOnly)) qFatal("a text of the program is missing");
    return file.readAll().toStdString();
}

}  // namespace

Application::Application(int& argc, char** argv, const CommandLine& commandLine)
    : QApplication{argc, argv},
      m_random{commandLine.seed},
      m_shapes{programDrawings()},
      m_playerFile{m_files, m_shared.PlayerFileName} {
    GlintButtonAccessible::install();
    QtLinkLabel::installAccessible();
    setApplicationName(QStringLiteral("Skylob"));
    // One screen may close before the next is shown.
    setQuitOnLastWindowClosed(false);
    m_strings.addLines(resourceText(QStringLiteral(":/strings/commentary.txt")));
    for (const int topic : {kOverviewText, 1100, 1200, 1300})
        m_strings.add(topic, resourceText(QStringLiteral(":/strings/manual/%1.txt").arg(topic)));
}

Application::~Application() {
    delete m_manual;
}

int Application::run() {
    try {
        if (!Main(m_shared, m_singleCopy.copies(), m_files, m_boxes)) return EXIT_FAILURE;
        after(Event::ProgramStarted);
    } catch (const std::exception& error) {
        fail(error.what());
    }
    const int status = exec();
    if (!m_sounds.close(kPatienceWithClosing)) std::_Exit(status);
    return status;
}

void Application::after(Event event) {
    for (const Step& step : kOrderOfScreens) {
        if (step.event == event) return (this->*step.next)();
    }
}

template <typename Form>
void Application::follow(Form* form, void (Form::*signal)(), Event event) {
    connect(form, signal, this, [this, form, event] {
        form->deleteLater();  // it is still at work on the present event
        after(event);
    });
}

void Application::show(QWidget* screen) {
    centreOver(*screen, m_screen);
    m_screen = screen;
    screen->show();
}

void Application::showTitlePage() {
    auto* page = new frmTitlePage{m_shared,
                                  {m_clock, m_sounds, m_settings, m_links, m_boxes, m_shapes,
                                   [this] { after(Event::NewUserCame); }}};
    follow(page, &frmTitlePage::continued, Event::TitlePageContinued);
    follow(page, &frmTitlePage::closed, Event::TitlePageClosed);
    show(page);
}

void Application::showNewUser() {
    frmNewUser welcome{m_shared, m_strings.text(kOverviewText), m_settings, m_shapes};
    centreOver(welcome, m_screen);
    keepAbove(welcome, m_screen);
    welcome.exec();
}

void Application::showPlayerList() {
    auto* list = new frmGetPlayers{m_shared,
                                   {m_playerFile, m_clock, m_boxes, m_settings, m_sounds, m_links,
                                    m_shapes, [this] { after(Event::ComputerChallenged); }}};
    connect(list, &frmGetPlayers::helpWanted, this, [this] { after(Event::HelpWanted); });
    follow(list, &frmGetPlayers::battleChosen, Event::PlayersChosen);
    follow(list, &frmGetPlayers::programLeft, Event::PlayerListLeft);
    show(list);
}

void Application::showManual() {
    if (!m_manual) {
        m_manual = new frmManual{m_shared, {m_strings, m_settings, m_links, m_boxes, m_shapes}};
        connect(m_manual, &frmManual::returned, m_manual, &QObject::deleteLater);
        centreOver(*m_manual, m_screen);
        m_manual->show();
    }
    m_manual->setWindowState(m_manual->windowState() & ~Qt::WindowMinimized);
    m_manual->raise();
    m_manual->activateWindow();
}

void Application::showSkillLevel() {
    frmGetSkillLevel question{m_shared, m_settings, m_shapes};
    centreOnDisplay(question, m_screen);
    keepAbove(question, m_screen);
    question.exec();
}

void Application::showBattle() {
    m_battle = new frmPlayGame{
        m_shared,
        {{m_random, m_clock, m_pacer, m_sounds, m_boxes, m_settings},
         m_shapes,
         [this](SummaryKind kind) {
             after(kind == SummaryKind::Round ? Event::RoundDecided : Event::SetDecided);
         }}};
    follow(m_battle.get(), &frmPlayGame::battleClosed, Event::BattleLeft);
    show(m_battle);
}

void Application::showRoundSummary() {
    showSummary(SummaryKind::Round);
}

void Application::showSetSummary() {
    showSummary(SummaryKind::Set);
}

void Application::showSummary(SummaryKind kind) {
    SilentSounds silence;
    SoundPlayer& sounds =
        m_battle->battle().state().SoundOn ? static_cast<SoundPlayer&>(m_sounds) : silence;
    frmSummary summary{m_shared,
                       kind,
                       {m_clock, m_random, sounds, m_boxes, m_strings, m_playerFile},
                       m_settings,
                       m_shapes};
    centreOver(summary, m_screen);
    keepAbove(summary, m_screen);
    summary.exec();
}

void Application::quitWhenSilent() {
    constexpr int kPause = 50;       // milliseconds
    if (m_manual) m_manual->hide();  // not deleted yet: it may be at work on a print
    m_singleCopy.release();
    auto* timer = new QTimer{this};
    const QDeadlineTimer deadline{kPatienceWithSounds};
    connect(timer, &QTimer::timeout, this, [this, deadline] {
        if (!m_sounds.isPlaying() || deadline.hasExpired()) quit();
    });
    timer->start(kPause);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    // An exception must not travel through the toolkit's event loop.
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        fail(error.what());
    }
    return false;
}

void Application::fail(const char* why) {
    const std::string text = std::string{why} + "\r\n\r\nSkylob ends now.";
    m_boxes.show({"Run-time error", text, BoxIcon::Critical, BoxButtons::Ok});
    std::_Exit(1);
}

}  // namespace skylob
