#pragma once

#include <string>

#include "screen/qt/QtScreen.h"

class QCheckBox;

namespace skylob {

/// Welcomes a new user with an overview of the program, until asked not to do it again. Run it
/// with showModal().
class frmNewUser : public QtScreen {
    Q_OBJECT

  public:
    /// `overview` in UTF-8.
    frmNewUser(const QtScreenPorts& ports, const std::string& overview);

  protected:
    void paintGround(QPainter& painter, const QRect& exposed) override;

  private:
    void askedToClose() override;
    GlintButton* primaryButton() const override { return cmdContinue; }
    void cmdContinue_Click();

    QCheckBox* chkDontShow;
    GlintButton* cmdContinue;
};

}  // namespace skylob
