#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPixmap>
#include <QWidget>
#include <vector>

#include "base/Motion.h"
#include "title/TitleScene.h"

namespace skylob {

class QtShapes;

/// The animated picture of the title page, 640 x 280. It moves 15 times a second as long as it is
/// seen and motion is not to be reduced, and only what has changed is painted again.
class QtTitleAnimation : public QWidget {
    Q_OBJECT

  public:
    /// `shapes` has the two pieces; it must outlive the widget, and so must `motion`, which may
    /// become another one at any time.
    QtTitleAnimation(const QtShapes& shapes, const Motion& motion, QWidget* parent = nullptr);

    bool isRunning() const { return m_timer.isActive(); }

    /// Stops the picture where it is, and lets it go on.
    void pause() { m_timer.stop(); }
    void resume();

    /// Shows the animation as it is that many seconds after its beginning.
    void showMoment(double seconds);

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void makeBackdrop();

    const QtShapes& m_shapes;
    const Motion& m_motion;
    TitleScene m_scene;
    std::vector<TitleSpot> m_spots;  ///< what is shown over the backdrop
    QPixmap m_backdrop;              ///< what never moves, in device pixels
    QBasicTimer m_timer;
    QElapsedTimer m_running;
};

}  // namespace skylob
