#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QPoint>
#include <QPointer>

class QWidget;

namespace skylob {

/// Which of the program's widgets the pointer is over, for whoever asks again and again.
///
/// On X11 every question costs several round trips to the display. While it is watching, the
/// answers of the last time stand until the display reports anything at all: a pointer that moves,
/// and a window that comes between, are reported to the window that the pointer was over. Once the
/// pointer has left, also for a grab, in which nothing more is reported, each question goes to the
/// display. Which widget of the window it is stands until any event but a timer's comes to the
/// program: no widget comes, goes, moves or is drawn anew without one.
class QtPointerPlace final : public QObject, public QAbstractNativeEventFilter {
  public:
    QtPointerPlace() = default;
    ~QtPointerPlace() override { watch(false); }
    Q_DISABLE_COPY_MOVE(QtPointerPlace)

    /// Begins or ends; it does not watch at first, nor on other displays than X11.
    void watch(bool on);

    /// Null where it is over none. The window system must tell the pointer's place (Wayland does
    /// not).
    QWidget* widget();

  private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    QWidget* childThere() const;

    bool m_isWatching = false, m_isInside = false;
    bool m_windowStands = false, m_widgetStands = false;  ///< what was answered last
    QPoint m_place;                                       ///< on the desktop
    QPointer<QWidget> m_window, m_widget;
};

}  // namespace skylob
