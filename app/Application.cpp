#include "app/Application.h"

#include <QFile>
#include <QTimer>
#include <cstdlib>
#include <exception>

#include "battle/HeadlessBattle.h"
#include "battle/frmPlayGame.h"
#include "controls/GlintButtonAccessible.h"
#include "players/frmGetPlayers.h"
#include "players/frmGetSkillLevel.h"
#include "players/frmSummary.h"

namespace skylob {

namespace {

std::string resourceText(const QString& name) {
    QFile file{name};
    if (!file.open(QIODevice::ReadOnly)) qFatal("a text of the program is missing");
    return file.readAll().toStdString();
}

/// A screen that has hidden itself is still at work on the present event.
void deleteAfterwards(QWidget* screen) {
    screen->deleteLater();
}

}  // namespace

Application::Application(int& argc, char** argv, const CommandLine& commandLine)
    : QApplication{argc, argv},
      m_random{commandLine.seed},
      m_shapes{programDrawings()},
      m_playerFile{m_files, m_shared.PlayerFileName} {
    GlintButtonAccessible::install();
    setApplicationName(QStringLiteral("Skylob"));
    // One screen may close before the next is shown.
    setQuitOnLastWindowClosed(false);
    m_strings.addLines(resourceText(QStringLiteral(":/strings/commentary.txt")));
}

Application::~Application() = default;

int Application::run() {
    try {
        showLobby();
    } catch (const std::exception& error) {
        fail(error.what());
    }
    return exec();
}

void Application::showLobby() {
    auto* lobby = new frmGetPlayers{m_shared,
                                    {m_playerFile, m_clock, m_boxes, m_settings, m_sounds, m_links,
                                     m_shapes, [this] { askForSkillLevel(); }}};
    connect(lobby, &frmGetPlayers::battleChosen, this, [this, lobby] {
        deleteAfterwards(lobby);
        showBattle();
    });
    connect(lobby, &frmGetPlayers::programLeft, this, [this, lobby] {
        deleteAfterwards(lobby);
        quitWhenSilent();
    });
    lobby->show();
}

void Application::askForSkillLevel() {
    frmGetSkillLevel{m_shared, m_settings, m_shapes}.exec();
}

void Application::showBattle() {
    m_battle = new frmPlayGame{
        m_shared, frmPlayGamePorts{m_random, m_clock, m_pacer, m_sounds, m_boxes, m_settings,
                                   m_shapes, [this](SummaryKind kind) { showSummary(kind); }}};
    connect(m_battle, &frmPlayGame::battleClosed, this, [this] {
        deleteAfterwards(m_battle);
        showLobby();
    });
    m_battle->show();
}

void Application::showSummary(SummaryKind kind) {
    SilentSounds silence;
    SoundPlayer& sounds =
        m_battle->battle().state().SoundOn ? static_cast<SoundPlayer&>(m_sounds) : silence;
    frmSummary{m_shared,
               kind,
               {m_clock, m_random, sounds, m_boxes, m_strings, m_playerFile},
               m_settings,
               m_shapes}
        .exec();
}

void Application::quitWhenSilent() {
    constexpr int kPause = 50;  // milliseconds
    auto* timer = new QTimer{this};
    connect(timer, &QTimer::timeout, this, [this] {
        if (!m_sounds.isPlaying()) quit();
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
    m_boxes.show({"Run-time error", why, BoxIcon::Critical, BoxButtons::Ok});
    std::_Exit(1);
}

}  // namespace skylob
