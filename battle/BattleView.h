#pragma once

#include <functional>
#include <string>

#include "base/SummaryKind.h"
#include "battle/BattlePanel.h"

namespace skylob {

enum class BattleCursor { Normal, Hourglass };

/// The screen as the rules of battle see it. Shots and the computer's turns block the thread
/// without serving events, so whatever is to be seen meanwhile must be on the display when these
/// functions return.
class BattleView {
  public:
    virtual ~BattleView() = default;

    /// Brings the picture's changes to the display.
    virtual void showField() = 0;

    /// Brings the controls in line with the panel.
    virtual void showPanel(const BattlePanel& panel) = 0;

    virtual void showCursor(BattleCursor cursor) = 0;

    /// From holdInput() on, mouse and key input to this screen is swallowed, without a change
    /// in its looks. releaseInput() drops what has been made since and lets the user in again.
    /// Calls do not nest. Modal boxes over the screen are not concerned.
    virtual void holdInput() = 0;
    virtual void releaseInput() = 0;

    /// Called again and again while a storm holds the field, in a pause in which input is held and
    /// only the window's closing gets through. The first call dims the controls, which stay
    /// enabled; each one shows the storm's next picture. endStorm() takes all that back, and shows
    /// the report that was there before.
    virtual void showStorm() = 0;
    virtual void endStorm() = 0;

    /// The line below the field.
    virtual void showReport(const std::string& report) = 0;

    /// The width of the display that the screen is on, in its own pixels.
    virtual int displayWidth() const = 0;

    /// Runs `task` after the present event has been handled; never if the screen is gone by then.
    virtual void queue(std::function<void()> task) = 0;

    /// Shows the summary and returns when the user has closed it.
    virtual void showSummary(SummaryKind kind) = 0;

    /// Shows the rules of the game and returns when the player has read them.
    virtual void showRules() = 0;

    /// The set is over or left: the screen goes. The battle that calls this is still in use
    /// until the present event has been handled.
    virtual void closeBattle() = 0;
};

}  // namespace skylob
