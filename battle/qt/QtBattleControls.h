#pragma once

#include <QList>

#include "base/PerSide.h"

class QLabel;
class QObject;
class QWidget;

namespace skylob {

class BattleOptions;
class GlintButton;
class QtHints;
class QtOptionStrip;
class QtReportLabel;
class QtSidePanel;
class WindowStore;
struct BattlePanel;
struct QtScreenPorts;
struct frmPlayGameLayout;

/// All that stands on the battle screen below the field: the row with report and score, a frame for
/// each side, the round's number, Shoot, Quit and the options. They show a BattlePanel; what is
/// done with them the screen connects to the rules, except for the options, which are told
/// themselves.
///
/// While a shot is under way the commands, that is Shoot, Quit and the options, are disabled, and
/// the keyboard's focus is on none of them. With the next turn it comes to that side's speed bar,
/// or back to Shoot if it was there.
class QtBattleControls {
  public:
    /// Makes them as children of `board`, which they go with; place() is to follow. `screen` and
    /// `options` must outlive them, `layout` need not.
    QtBattleControls(const frmPlayGameLayout& layout, const QtScreenPorts& screen,
                     BattleOptions& options, QWidget* board);

    /// Moves all of them to where they stand in `layout`.
    void place(const frmPlayGameLayout& layout);

    /// Bring them in line with the panel, both for each one. The first, before the commands are
    /// disabled, frees them of the focus and shows frames and report; the second shows the rest and
    /// gives the focus back. Between them readers can be told of the field.
    void showSides(const BattlePanel& panel);
    void showCommands(const BattlePanel& panel);

    QtSidePanel* side(int side) const { return m_side[side]; }
    QtReportLabel* report() const { return labelReport; }
    GlintButton* shoot() const { return cmdShoot; }
    GlintButton* quit() const { return cmdQuit; }
    QtOptionStrip* strip() const { return m_strip; }

    /// Shoot, Quit and the options, in the order of the Tab key.
    QList<QWidget*> commands() const;

  private:
    void makeReportRow(QWidget* board);
    void makeSides(const frmPlayGameLayout& layout, const QtScreenPorts& screen, QWidget* board);
    void makeButtons(const frmPlayGameLayout& layout, const QtScreenPorts& screen, QWidget* board);
    void dropFocusOfCommands();
    void moveFocusToTurn(int turn);
    void showReportRow(const BattlePanel& panel);
    void showHints(const BattlePanel& panel);

    WindowStore& m_windows;
    const bool m_oneFrameAtATime;
    QtReportLabel* labelReport;
    QLabel *labelScore, *labelRoundNumber;
    PerSide<QtSidePanel*> m_side;
    GlintButton *cmdShoot, *cmdQuit;
    QtOptionStrip* m_strip;
    QtHints* m_hints = nullptr;  ///< once a new player has been shown them
    bool m_focusStaysOnShoot = false;
};

}  // namespace skylob
