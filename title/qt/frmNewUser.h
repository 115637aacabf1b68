#pragma once

#include <QDialog>
#include <string>

class QCheckBox;

namespace skylob {

class QtScreenFade;
class QtShapes;
class SettingsStore;
struct basSkylob;

/// Welcomes a new user with an overview of the program, until asked not to do it again. Run it
/// with exec().
class frmNewUser : public QDialog {
    Q_OBJECT

  public:
    /// `overview` in UTF-8. All references must outlive the screen.
    frmNewUser(basSkylob& shared, const std::string& overview, SettingsStore& settings,
               const QtShapes& shapes);

    void reject() override;

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void cmdContinue_Click();
    void leave();

    SettingsStore& m_settings;
    const QtShapes& m_shapes;
    QtScreenFade* m_fade;
    QCheckBox* chkDontShow;
};

}  // namespace skylob
