#pragma once

#include <QObject>

class QKeyEvent;

namespace skylob {

/// Makes one press of Enter one act, however long the key is held and whichever screens come and
/// go meanwhile: swallows what the key repeats, in all windows. A program needs one; it works from
/// the moment it is made.
class QtEnterGuard : public QObject {
    Q_OBJECT

  public:
    /// There must be a QApplication, which has to outlive the guard.
    QtEnterGuard();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool isRepeat(const QKeyEvent& press) const;

    quint64 m_released = 0;  ///< when Enter went up last, in the window system's milliseconds
};

}  // namespace skylob
