#pragma once

#include <QObject>
#include <functional>

class QTimer;

namespace skylob {

class Battle;

/// The battle screen's timers: they run while the panel says so and the screen is shown, and tick
/// into the battle.
class QtEffectTimers : public QObject {
    Q_OBJECT

  public:
    /// `screen` is to be the parent as well; `battle` must outlive both.
    QtEffectTimers(QWidget* screen, Battle& battle);

    /// The panel has changed: runs and stops the timers as it says.
    void follow();

    /// The screen is leaving: no tick from now on.
    void end();

  signals:
    /// A tick, and the effect that it may have started, is over.
    void ticked();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QTimer* makeTimer(const QString& name, int milliseconds, std::function<void()> tick);

    Battle& m_battle;
    QTimer *timerMeteors, *timerLightning;
    bool m_isShown = false, m_hasEnded = false;
};

}  // namespace skylob
