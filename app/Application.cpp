#include "app/Application.h"

#include <cstdlib>
#include <exception>

#include "app/Settings.h"
#include "battle/frmPlayGame.h"
#include "controls/GlintButtonAccessible.h"
#include "players/SetResult.h"
#include "players/frmSummary.h"

namespace skylob {

Application::Application(int& argc, char** argv, const CommandLine& commandLine)
    : QApplication{argc, argv}, m_random{commandLine.seed}, m_shapes{programDrawings()} {
    GlintButtonAccessible::install();
    setApplicationName(QStringLiteral("Skylob"));
    // One screen may close before the next is shown.
    setQuitOnLastWindowClosed(false);
    m_shared.PlayerName = {"Player", std::string{kComputerName}};
    m_shared.NumRounds = settings::readNumRounds(m_settings);
    m_shared.ScreenSize = settings::readScreenSize(m_settings);
}

Application::~Application() = default;

int Application::run() {
    try {
        showBattle();
    } catch (const std::exception& error) {
        fail(error.what());
    }
    return exec();
}

void Application::showBattle() {
    m_battle = std::make_unique<frmPlayGame>(
        m_shared, frmPlayGamePorts{m_random, m_clock, m_pacer, m_sounds, m_boxes, m_settings,
                                   m_shapes, [this](SummaryKind kind) { showSummary(kind); }});
    connect(m_battle.get(), &frmPlayGame::battleClosed, this, &Application::quit,
            Qt::QueuedConnection);
    m_battle->show();
}

void Application::showSummary(SummaryKind kind) {
    if (kind == SummaryKind::Set) m_shared.Winner = setWinner(m_shared);
    frmSummary{m_shared, kind, m_shapes}.exec();
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
