#pragma once

#include "battle/Battle.h"
#include "battle/BattleView.h"
#include "battle/FieldLayer.h"
#include "screen/qt/QtScreen.h"

class QCheckBox;
class QLabel;
class QScrollBar;

namespace skylob {

class GlintButton;
class QtEffectTimers;
class QtInputGate;
class QtReportLabel;
class QtSidePanel;
class picGameField;
struct frmPlayGameLayout;

/// The battle screen: the field, and below it the two sides' controls and the options. Widgets
/// only report what the player does to the Battle and show what it says.
class frmPlayGame : public QtScreen, private BattleView {
    Q_OBJECT

  public:
    /// Laid out for shared.ScreenSize; the set starts when the screen is shown. Everything in
    /// `ports` must outlive the screen.
    frmPlayGame(const QtScreenPorts& screen, const BattlePorts& ports);

    const Battle& battle() const { return m_battle; }

    /// Where on the desktop the pieces and the last landing of the round are.
    QList<QRect> toBeSeen() const;

  signals:
    /// The receiver is to show the summary, and to return when that is over.
    void roundDecided();
    void setDecided();

    /// The set is over or has been left; the screen is hidden. Receivers must not delete it
    /// before the present event has been handled.
    void battleClosed();

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void Form_Activate() override;
    void askedToClose() override;

    void showField() override;
    void showPanel(const BattlePanel& panel) override;
    void showCursor(BattleCursor cursor) override;
    void holdInput() override;
    void releaseInput() override;
    int displayWidth() const override;
    void queue(std::function<void()> task) override;
    void showSummary(SummaryKind kind) override;
    void closeBattle() override;

    void makeSidePanels();
    void makeReportRow();
    void showReportRow(const BattlePanel& panel);
    void makeButtons();
    void makeOptions();
    static QCheckBox* makeBox(const char* name, const QString& caption, const QRect& place,
                              QWidget* strip);
    void connectControls();
    void addShortcuts();
    void setTabOrder();
    QString caption(int side) const;
    void showCommands(const BattlePanel& panel);
    void moveFocusToTurn(int turn);
    void fitField();

    const frmPlayGameLayout& m_layout;
    Battle m_battle;
    FieldLayer m_layer{m_battle.picture(), m_battle.scene(), m_battle.state()};
    QtInputGate* m_gate;
    QtEffectTimers* m_timers;
    picGameField* m_field;
    PerSide<QtSidePanel*> m_side;
    QtReportLabel* labelReport;
    QLabel *labelScore, *labelRoundNumber, *labelGameSpeed;
    QScrollBar* scrollGameSpeed;
    GlintButton *cmdShoot, *cmdQuit;
    QCheckBox *chkSound, *chkTrajectory, *chkMeteors, *chkLightning, *chkWind;
    int m_displayWidth = 0;  ///< that the field was drawn for
    bool m_focusStaysOnShoot = false;
};

}  // namespace skylob
