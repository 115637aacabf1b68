#pragma once

#include <QObject>

#include "battle/record/BattleReplay.h"

class QTimer;

namespace skylob {

/// Plays a recorded set on a screen that is only watched, at a pace that eyes can follow: between
/// two shots it takes its time as the computer does.
class QtReplayHand : public QObject {
    Q_OBJECT

  public:
    /// `battle` and `replay` must outlive the hand. `parent` is the screen.
    QtReplayHand(Battle& battle, BattleReplay& replay, QObject* parent);

    /// Who watches wants to leave: that happens as soon as nothing is in the air.
    void leaveSoon();

  signals:
    /// The set was left here when it was recorded, or is not the recorded one any more. When the
    /// receivers have told the player, it is left.
    void ended();

  private:
    void step();
    void aimOrAct();
    void end();

    Battle& m_battle;
    BattleReplay& m_replay;
    QTimer* m_timer;
    bool m_hasAimed = false, m_isToLeave = false;
};

}  // namespace skylob
