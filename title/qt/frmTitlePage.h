#pragma once

#include <QWidget>
#include <functional>

#include "base/Clock.h"
#include "base/LinkOpener.h"
#include "base/MessageBoxes.h"
#include "base/SettingsStore.h"
#include "base/SoundPlayer.h"
#include "base/basSkylob.h"
#include "look/qt/QtShapes.h"

namespace skylob {

class QtScreenFade;
class QtTitleAnimation;

/// What the title page needs beside the shared state; all of it must outlive the screen.
struct frmTitlePagePorts {
    const Clock& clock;
    SoundPlayer& sounds;
    SettingsStore& settings;
    LinkOpener& links;
    MessageBoxes& boxes;
    const QtShapes& shapes;
    /// Welcomes a new user and returns when that screen has been closed.
    std::function<void()> welcome;
};

/// The first screen: what the program is, over a picture that moves.
class frmTitlePage : public QWidget {
    Q_OBJECT

  public:
    frmTitlePage(basSkylob& shared, const frmTitlePagePorts& ports);

  signals:
    /// The user goes on, or has closed the page; it is hidden. Receivers must not delete it before
    /// the present event has been handled.
    void continued();
    void closed();

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void makeLabels();
    void cmdContinue_Click();

    basSkylob& m_shared;
    frmTitlePagePorts m_ports;
    QtScreenFade* m_fade;
    QtTitleAnimation* m_picture;
};

}  // namespace skylob
