#pragma once

#include <QObject>

class QKeyEvent;

namespace skylob {

/// Makes one press of a key that commands, Enter, Space, Esc, F1 or the like, or any with Alt, one
/// act, however long it is held and whichever screens come and go meanwhile: swallows what it
/// repeats, in all windows. Space is typed where there is text to be typed, and repeats itself
/// there. A program needs one; it works from the moment it is made.
class QtRepeatGuard : public QObject {
    Q_OBJECT

  public:
    /// There must be a QApplication, which has to outlive the guard.
    QtRepeatGuard();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool isRepeat(const QKeyEvent& press) const;
    bool isNobodys(const QKeyEvent& release);

    int m_key = 0;           ///< the command that went up last
    quint64 m_released = 0;  ///< when, in the window system's milliseconds; 0 after another key
    bool m_spaceIsDown = false;
    quint64 m_spaceUp = 0;  ///< when it went up from a press that was let through
};

}  // namespace skylob
