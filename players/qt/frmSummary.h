#pragma once

#include "base/PerSide.h"
#include "players/Summary.h"
#include "screen/qt/QtScreen.h"

class QLabel;

namespace skylob {

class QtSideFrame;

/// The screen after every round, and after the set. However the user closes it, a finished set is
/// recorded. Run it with showModal().
class frmSummary : public QtScreen {
    Q_OBJECT

  public:
    /// All arguments must outlive the screen.
    frmSummary(const QtScreenPorts& ports, SummaryKind kind, const SummaryPorts& rules);

  protected:
    void paintGround(QPainter& painter, const QRect& exposed) override;

  private:
    void makeFrames();
    void makeBubble();
    void makeOkay();
    void Form_Activate() override;
    void askedToClose() override;
    GlintButton* primaryButton() const override { return cmdOkay; }
    void timerDateTime_Timer();
    void cmdOkay_Click();

    const SummaryKind m_kind;
    Summary m_summary;
    PerSide<QtSideFrame*> frame;
    PerSide<QLabel*> labelRoundsWon, labelKills, labelTotalKills;
    QLabel *label, *labelDateTime, *labelReason, *labelComputerSays;
    GlintButton* cmdOkay;
};

}  // namespace skylob
