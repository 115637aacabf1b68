#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <deque>
#include <memory>

namespace skylob {

/// Keeps what the user does with any window of the program for later, while the windows themselves
/// go on being painted, sized and closed. The toolkit's own way of leaving input out counts the
/// closing of a window as input.
class QtHeldInput : public QObject {
    Q_OBJECT

  public:
    /// From hold() to release() input is kept. There must be a QApplication.
    void hold();
    void release();

    /// Gives what has been kept to the windows that are still there, in its order.
    void deliver();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Kept {
        QPointer<QObject> receiver;
        std::unique_ptr<QEvent> event;
    };

    bool replacesLast(const QObject* receiver, const QEvent& event) const;

    std::deque<Kept> m_kept;
};

}  // namespace skylob
