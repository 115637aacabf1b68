#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace skylob {

/// Keeps every window of the program that stands behind a modal one from acting on input, however
/// that comes: the toolkit lets shortcuts through, and what was under way when the modal window
/// came up. They are minimised with it, and all are restored together. A program needs one; it
/// works from the moment it is made. The modal window itself is served, and so are its menus.
class QtModalGuard : public QObject {
    Q_OBJECT

  public:
    /// There must be a QApplication, which has to outlive the guard.
    QtModalGuard();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void noteButtons(QWidget* widget, const QEvent& event);
    void letGoIn(const QObject* window);

    QPointer<QWidget> m_held;  ///< on which a mouse button went down and is down still
    Qt::MouseButton m_heldBy = Qt::NoButton;
    bool m_lettingGo = false;
};

}  // namespace skylob
