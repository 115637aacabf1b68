#pragma once

#include <QDialog>

#include "base/PerSide.h"
#include "base/SettingsStore.h"
#include "players/Summary.h"

class QLabel;

namespace skylob {

class QtScreenFade;
class QtShapes;
class QtSideFrame;

/// The screen after every round, and after the set. However the user closes it, a finished set is
/// recorded. Run it with exec().
class frmSummary : public QDialog {
    Q_OBJECT

  public:
    /// All references must outlive the screen.
    frmSummary(basSkylob& shared, SummaryKind kind, const SummaryPorts& ports,
               const SettingsStore& settings, const QtShapes& shapes);

    void reject() override;

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void makeFrames();
    void makeBubble();
    void makeOkay();
    void Form_Activate();
    void timerDateTime_Timer();
    void cmdOkay_Click();

    basSkylob& m_shared;
    const QtShapes& m_shapes;
    Summary m_summary;
    QtScreenFade* m_fade;
    PerSide<QtSideFrame*> frame;
    PerSide<QLabel*> labelRoundsWon, labelKills, labelTotalKills;
    QLabel *label, *labelDateTime, *labelComputerSays;
    bool m_activated = false, m_answered = false;
};

}  // namespace skylob
