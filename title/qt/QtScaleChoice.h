#pragma once

#include <QObject>

class QActionGroup;
class QLabel;
class QMenu;

namespace skylob {

class GlintButton;
class WindowStore;

/// How large everything is to be, as the title page offers it: a button that tells the scale and
/// brings up a menu of others, and a line that says when another one will hold.
class QtScaleChoice : public QObject {
    Q_OBJECT

  public:
    /// `button` and `note` stand on the page, the parent. `windows`, which keeps the choice, must
    /// outlive this object. `scaleNow` is this run's, in percent.
    QtScaleChoice(GlintButton* button, QLabel* note, WindowStore& windows, int scaleNow);

  private:
    void tell(int percent);
    void makeMenu();
    void popUp();

    GlintButton* m_button;
    QLabel* m_note;
    WindowStore& m_windows;
    const int m_scaleNow;
    int m_chosen;
    QMenu* m_menu = nullptr;  ///< once it was wanted
    QActionGroup* m_items = nullptr;
};

}  // namespace skylob
