#include "battle/qt/QtReplayHand.h"

#include <QTimer>
#include <chrono>

namespace skylob {

namespace {

constexpr std::chrono::milliseconds kThinking{1000}, kFromAimToShot{250}, kOthersTurn{100};

}  // namespace

QtReplayHand::QtReplayHand(Battle& battle, BattleReplay& replay, QObject* parent)
    : QObject{parent}, m_battle{battle}, m_replay{replay}, m_timer{new QTimer{this}} {
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, &QtReplayHand::step);
    m_timer->start(kThinking);
}

void QtReplayHand::leaveSoon() {
    m_isToLeave = true;
    m_timer->start(0);
}

void QtReplayHand::step() {
    if (m_battle.state().phase != Phase::Watching)
        m_timer->start(kOthersTurn);
    else if (m_isToLeave)
        m_battle.cmdQuit_Click();
    else if (m_replay.difference() || m_replay.wasLeftHere())
        end();
    else
        aimOrAct();
}

void QtReplayHand::aimOrAct() {
    if (m_hasAimed)
        m_replay.act(m_battle);
    else
        m_replay.aim(m_battle);
    m_hasAimed = !m_hasAimed;
    m_timer->start(m_hasAimed ? kFromAimToShot : kThinking);
}

void QtReplayHand::end() {
    emit ended();
    m_replay.act(m_battle);
    if (m_replay.difference()) m_battle.cmdQuit_Click();
}

}  // namespace skylob
