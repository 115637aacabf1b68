#include "screen/qt/QtScreenFade.h"

#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <utility>

#include "base/basSkylob.h"
#include "screen/qt/QtInputGate.h"
#include "screen/qt/modFadeInOut.h"

namespace skylob {

QtScreenFade::QtScreenFade(QWidget* screen, basSkylob& shared, const SettingsStore& settings)
    : QObject{screen},
      m_screen{screen},
      m_shared{shared},
      m_settings{settings},
      m_gate{new QtInputGate{screen}},
      timerFadeInOut{new QTimer{this}} {
    timerFadeInOut->setObjectName(QStringLiteral("timerFadeInOut"));
    timerFadeInOut->setTimerType(Qt::PreciseTimer);
    timerFadeInOut->setInterval(1);
    connect(timerFadeInOut, &QTimer::timeout, this, &QtScreenFade::timerFadeInOut_Timer);
}

void QtScreenFade::setAlpha(int alpha) {
    m_shared.FadeActive =
        SetFormAlpha(*m_screen, alpha, FadeDemand::WhenEnabled, m_settings, m_shared.motion);
}

void QtScreenFade::load() {
    setAlpha(kInvisible);
    m_fadesIn = m_shared.FadeActive;
}

void QtScreenFade::fadeIn() {
    if (m_fadesIn) StartFade(kInvisible, kOpaque, kFadeStep, AfterFade::Stay);
}

void QtScreenFade::fadeOut(std::function<void()> leavingWork, int step) {
    setAlpha(kOpaque);
    if (!m_shared.FadeActive) return leavingWork();
    m_leavingWork = std::move(leavingWork);
    StartFade(kOpaque, kInvisible, step, AfterFade::Close);
}

void QtScreenFade::StartFade(int start, int end, int step, AfterFade after) {
    m_fade.StartFade(start, end, step, after);
    m_gate->close();
    m_sinceStep.start();
    timerFadeInOut->start();
}

bool QtScreenFade::frameIsDue() const {
    constexpr double kUsualRate = 60;
    const double rate = m_screen->screen()->refreshRate();
    return static_cast<double>(m_sinceStep.elapsed()) * (rate >= 1 ? rate : kUsualRate) >= 1000;
}

void QtScreenFade::timerFadeInOut_Timer() {
    // The timer is faster than any display: a step within a frame would never be seen, and
    // thirteen of them would be over in one.
    if (!frameIsDue()) return;
    m_sinceStep.start();
    applyOpacity(*m_screen, m_fade.tick());
    if (m_fade.isActive()) return;
    timerFadeInOut->stop();
    m_gate->open();
    // Moved out first: the work may well delete the screen, and this with it.
    if (m_fade.after() == AfterFade::Close) std::exchange(m_leavingWork, {})();
}

}  // namespace skylob
