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

    /// Before the screen is shown: makes it invisible if it will fade in.
    void load();

    /// When the screen is shown: fades it in after a load() that found it can.
    void fadeIn();

    /// Fades the screen out by `step` a tick and then does the work of leaving it, or does that
    /// at once.
    void fadeOut(std::function<void()> leavingWork, int step);

    bool isFading() const { return m_fade.isActive(); }

  private:
    void setAlpha(int alpha);
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
    bool m_fadesIn = false;
};

}  // namespace skylob
