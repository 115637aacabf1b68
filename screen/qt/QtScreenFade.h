#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <functional>

#include "screen/Fade.h"

class QTimer;
class QWidget;

namespace skylob {

class QtInputGate;
class SettingsStore;
struct basSkylob;

/// How a screen appears and goes: in a fade where the user wants it and the display can, else at
/// once. During a fade the screen takes no input. Each screen has one.
class QtScreenFade : public QObject {
    Q_OBJECT

  public:
    /// `screen` is to be the parent as well; `shared`, whose FadeActive it keeps, and `settings`
    /// must outlive it.
    QtScreenFade(QWidget* screen, basSkylob& shared, const SettingsStore& settings);

    /// When the screen has been made and is not yet shown: makes it invisible if it will fade in.
    void load();

    /// When the screen is shown for the first time: fades it in after a load() that found it can.
    void activate();

    /// Fades the screen out by `step` a tick and then does the work of leaving it, or does that
    /// at once. Does nothing when the screen is leaving already.
    void leave(std::function<void()> leavingWork, int step = kFadeStep);

    bool isFading() const { return m_fade.isActive(); }

    /// Whether the screen may be closed now: it neither fades nor has left. What closes its window
    /// may have been waiting behind what made it leave.
    bool takesClosing() const { return !isFading() && !m_leaves; }

  private:
    void StartFade(int start, int end, int step, AfterFade after);
    bool frameIsDue() const;
    void timerFadeInOut_Timer();

    QWidget* m_screen;
    basSkylob& m_shared;
    const SettingsStore& m_settings;
    QtInputGate* m_gate;
    QTimer* timerFadeInOut;
    Fade m_fade;
    QElapsedTimer m_sinceStep;
    std::function<void()> m_leavingWork;
    bool m_fadesIn = false, m_leaves = false;
};

}  // namespace skylob
