#pragma once

#include <QDialog>

namespace skylob {

class QtScreenFade;
class QtShapes;
class SettingsStore;
struct basSkylob;

/// Asks how well the computer is to aim and stores the answer; closed without one, it leaves the
/// level as it was. Run it with exec().
class frmGetSkillLevel : public QDialog {
    Q_OBJECT

  public:
    /// All of the arguments must outlive the screen.
    frmGetSkillLevel(basSkylob& shared, const SettingsStore& settings, const QtShapes& shapes);

    void reject() override;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void cmdSkillLevel_Click(int index);
    void leave();

    basSkylob& m_shared;
    QtScreenFade* m_fade;
};

}  // namespace skylob
