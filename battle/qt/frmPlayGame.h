#pragma once

#include <memory>

#include "battle/Battle.h"
#include "battle/BattleView.h"
#include "battle/light/FieldLayer.h"
#include "battle/qt/QtBattleControls.h"
#include "battle/qt/QtGunDrawings.h"
#include "screen/qt/QtScreen.h"

class QFrame;

namespace skylob {

class BattleReplay;
class QtDragAim;
class QtEffectTimers;
class QtInputGate;
class QtReplayHand;
class QtStormHold;
class picGameField;
struct frmPlayGameLayout;

/// The battle screen: the field, and below it the two sides' controls and the options. Widgets
/// only report what the player does to the Battle and show what it says.
class frmPlayGame : public QtScreen, private BattleView {
    Q_OBJECT

  public:
    /// Laid out for shared.ScreenSize, or as large as `room`, its display's, allows; the set starts
    /// when the screen is shown. Everything in `ports` must outlive the screen.
    frmPlayGame(const QtScreenPorts& screen, const BattlePorts& ports,
                const QSize& room = {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX});
    ~frmPlayGame() override;

    const Battle& battle() const { return m_battle; }

    /// The set is only watched, and `replay`, which must outlive the screen, plays it. To be called
    /// before the screen is shown.
    void watch(BattleReplay& replay);

    /// Where on the desktop the pieces and the last landing of the round are.
    QList<QRect> toBeSeen() const;

  signals:
    /// The receiver is to show the summary, and to return when that is over.
    void roundDecided();
    void setDecided();

    /// The receiver is to show the rules of the game, and to return when they have been read.
    void rulesWanted();

    /// A set that is watched ends before its recorded end, or was left here. The receiver is to say
    /// so, and to return when that has been read; then the battle closes.
    void replayEnded();

    /// How loud sounds are to be from now on, in percent.
    void volumeChosen(int percent);

    /// The set is over or has been left; the screen is hidden. Receivers must not delete it
    /// before the present event has been handled.
    void battleClosed();

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void Form_Activate() override;
    void askedToClose() override;
    void boardResized() override;

    void showField() override;
    void showPanel(const BattlePanel& panel) override;
    void showCursor(BattleCursor cursor) override;
    void holdInput() override;
    void releaseInput() override;
    void showStorm() override;
    void endStorm() override;
    void showReport(const std::string& report) override;
    int displayWidth() const override;
    void queue(std::function<void()> task) override;
    void showSummary(SummaryKind kind) override;
    void showRules() override;
    void closeBattle() override;

    void quit();
    BattlePanel shown(const BattlePanel& panel) const;
    void place(const frmPlayGameLayout& layout);
    void connectControls();
    void fitField();

    const frmPlayGameLayout& m_layout;  ///< at the screen's smallest size
    Battle m_battle;
    QtGunDrawings m_guns{m_shapes};
    FieldLayer m_layer{m_battle.picture(), m_battle.scene(), m_battle.state(), &m_guns};
    QtInputGate* m_gate;
    QtEffectTimers* m_timers;
    QFrame* m_fieldEdge;
    picGameField* m_field;
    QtDragAim* m_dragAim;
    QtBattleControls m_controls;
    std::unique_ptr<QtStormHold> m_stormHold;  ///< while a storm holds the field
    int m_displayWidth = 0;                    ///< that the field was drawn for
    QtReplayHand* m_replayHand = nullptr;      ///< of a set that is watched
};

}  // namespace skylob
