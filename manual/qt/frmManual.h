#pragma once

#include "base/LinkOpener.h"
#include "base/MessageBoxes.h"
#include "base/StringTable.h"
#include "screen/qt/QtScreen.h"

class QActionGroup;
class QLabel;
class QMenu;
class QTextEdit;

namespace skylob {

class GlintButton;

enum class ManualTopic { Overview, PlayerList, Rules, Strategy };

/// The manual: one topic at a time, which can be printed. Other screens go on beside it,
/// unless it is shown with showModal().
class frmManual : public QtScreen {
    Q_OBJECT

  public:
    /// `texts` with 1000, 1100, 1200 and 1300. All arguments must outlive the screen.
    frmManual(const QtScreenPorts& ports, const StringTable& texts, LinkOpener& links,
              MessageBoxes& boxes, ManualTopic topic = ManualTopic::Overview);

  signals:
    /// The user has had enough; the screen is hidden. Receivers must not delete it before the
    /// present event has been handled.
    void returned();

  private:
    void askedToClose() override;
    GlintButton* primaryButton() const override { return cmdReturn; }
    void makeMenu();
    void makeButtons();
    void menuHelpTopic_Click(int index);
    void cmdHelpTopic_Click();
    void cmdPrintHelp_Click();
    void cmdReturn_Click();

    const StringTable& m_texts;
    LinkOpener& m_links;
    MessageBoxes& m_boxes;
    QLabel* labelHelpTopic;
    QTextEdit* txtManual;
    QMenu* m_topics;
    QActionGroup* menuHelpTopic;
    GlintButton *cmdHelpTopic, *cmdPrintHelp, *cmdReturn;
};

}  // namespace skylob
