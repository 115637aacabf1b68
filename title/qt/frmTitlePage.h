#pragma once

#include "base/Clock.h"
#include "base/LinkOpener.h"
#include "base/MessageBoxes.h"
#include "base/SoundPlayer.h"
#include "screen/qt/QtScreen.h"

namespace skylob {

class GlintButton;
class QtTitleAnimation;

/// The first screen: what the program is, over a picture that moves.
class frmTitlePage : public QtScreen {
    Q_OBJECT

  public:
    /// `scale` is this run's, in percent. All other arguments must outlive the screen.
    frmTitlePage(const QtScreenPorts& ports, const Clock& clock, SoundPlayer& sounds,
                 LinkOpener& links, MessageBoxes& boxes, int scale);

  signals:
    /// A new user goes on. The receiver is to welcome them, and to return when that is over.
    void newUserCame();

    /// The user goes on, or has closed the page; it is hidden. Receivers must not delete it before
    /// the present event has been handled.
    void continued();
    void closed();

  protected:
    bool event(QEvent* event) override;
    void paintGround(QPainter& painter, const QRect& exposed) override;

  private:
    void askedToClose() override;
    GlintButton* primaryButton() const override { return cmdContinue; }
    void makeLabels();
    void makeButtons(int scale);
    void cmdContinue_Click();

    const Clock& m_clock;
    SoundPlayer& m_sounds;
    LinkOpener& m_links;
    MessageBoxes& m_boxes;
    QtTitleAnimation* m_picture;
    GlintButton* cmdContinue;
};

}  // namespace skylob
