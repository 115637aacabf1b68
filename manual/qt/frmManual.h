#pragma once

#include <QWidget>

#include "base/LinkOpener.h"
#include "base/MessageBoxes.h"
#include "base/SettingsStore.h"
#include "base/StringTable.h"
#include "base/basSkylob.h"
#include "look/qt/QtShapes.h"

class QActionGroup;
class QLabel;
class QMenu;
class QTextEdit;

namespace skylob {

class GlintButton;
class QtScreenFade;

/// What the manual needs beside the shared state; all of it must outlive the screen.
struct frmManualPorts {
    const StringTable& strings;  ///< with the texts 1000, 1100, 1200 and 1300
    const SettingsStore& settings;
    LinkOpener& links;
    MessageBoxes& boxes;
    const QtShapes& shapes;
};

/// The manual: one topic at a time, which can be printed. Other screens go on beside it.
class frmManual : public QWidget {
    Q_OBJECT

  public:
    frmManual(basSkylob& shared, const frmManualPorts& ports);

  signals:
    /// The user has had enough; the screen is hidden. Receivers must not delete it before the
    /// present event has been handled.
    void returned();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void makeMenu();
    void makeButtons();
    void menuHelpTopic_Click(int index);
    void cmdHelpTopic_Click();
    void cmdPrintHelp_Click();
    void cmdReturn_Click();

    frmManualPorts m_ports;
    QtScreenFade* m_fade;
    QLabel* labelHelpTopic;
    QTextEdit* txtManual;
    QMenu* m_topics;
    QActionGroup* menuHelpTopic;
    GlintButton *cmdHelpTopic, *cmdPrintHelp, *cmdReturn;
};

}  // namespace skylob
