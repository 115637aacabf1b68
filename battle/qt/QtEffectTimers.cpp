#include "battle/qt/QtEffectTimers.h"

#include <QEvent>
#include <QGuiApplication>
#include <QTimer>
#include <QWidget>
#include <utility>

#include "battle/Battle.h"

namespace skylob {

namespace {

void run(QTimer& timer, bool running) {
    if (running == timer.isActive()) return;
    if (running)
        timer.start();
    else
        timer.stop();
}

}  // namespace

QtEffectTimers::QtEffectTimers(QWidget* screen, Battle& battle)
    : QObject{screen},
      m_battle{battle},
      timerMeteors{makeTimer(QStringLiteral("timerMeteors"), 333,
                             [this] { m_battle.timerMeteors_Timer(); })},
      timerLightning{makeTimer(QStringLiteral("timerLightning"), 500,
                               [this] { m_battle.timerLightning_Timer(); })} {
    screen->installEventFilter(this);
}

QTimer* QtEffectTimers::makeTimer(const QString& name, int milliseconds,
                                  std::function<void()> tick) {
    auto* timer = new QTimer{this};
    timer->setObjectName(name);
    timer->setInterval(milliseconds);
    connect(timer, &QTimer::timeout, this, [this, tick = std::move(tick)] {
        // A storm swallows the release of a button that is held, and it would stay held.
        if (QGuiApplication::mouseButtons() == Qt::NoButton) tick();
        emit ticked();
    });
    return timer;
}

void QtEffectTimers::end() {
    m_hasEnded = true;
    follow();
}

bool QtEffectTimers::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        m_isShown = event->type() == QEvent::Show;
        follow();
    }
    return false;
}

void QtEffectTimers::follow() {
    const BattlePanel& panel = m_battle.panel();
    const bool mayRun = m_isShown && !m_hasEnded;
    run(*timerMeteors, mayRun && panel.timerMeteors);
    run(*timerLightning, mayRun && panel.timerLightning);
}

}  // namespace skylob
