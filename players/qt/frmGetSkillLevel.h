#pragma once

#include "screen/qt/QtScreen.h"

namespace skylob {

/// Asks how well the computer is to aim and stores the answer; closed without one, it leaves the
/// level as it was. Run it with showModal().
class frmGetSkillLevel : public QtScreen {
    Q_OBJECT

  public:
    explicit frmGetSkillLevel(const QtScreenPorts& ports);

  private:
    void askedToClose() override;
    GlintButton* primaryButton() const override;  ///< the one with the focus
    void cmdSkillLevel_Click(int index);
};

}  // namespace skylob
