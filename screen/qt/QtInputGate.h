#pragma once

#include <QObject>

class QWidget;

namespace skylob {

/// Swallows mouse and key input to one window while the gate is closed; at first it is open. Input
/// to other windows, such as a box over this one, is not concerned.
class QtInputGate : public QObject {
    Q_OBJECT

  public:
    /// `window` is to be the gate's parent as well.
    explicit QtInputGate(QWidget* window);

    bool isClosed() const { return m_closed; }
    void close();
    void open();

    /// After the thread has been blocked: lets the input that has been waiting run into the closed
    /// gate before it opens.
    void dropInputAndOpen();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool belongsToWindow(QObject* object) const;

    QWidget* m_window;
    bool m_closed = false;
};

}  // namespace skylob
