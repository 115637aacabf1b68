#pragma once

#include "battle/BarRange.h"
#include "battle/BattlePanel.h"
#include "battle/qt/frmPlayGameLayout.h"
#include "screen/qt/QtSideFrame.h"

class QLabel;
class QScrollBar;

namespace skylob {

class QtMenGauge;

/// A horizontal scroll bar over a range, usable by keyboard. It stands at its minimum.
QScrollBar* makeScrollBar(const QString& name, const BarRange& range, const QRect& place,
                          QWidget* parent);

/// One side's frame: name, speed and angle, men left. Its controls are named after the side as
/// well, such as "scrollSpeed(1)".
class QtSidePanel : public QtSideFrame {
    Q_OBJECT

  public:
    /// `caption` is plain text.
    QtSidePanel(int side, const QString& caption, const SidePanelLayout& layout, QWidget* parent);

    /// Follows the panel; `isTurn` gives the frame its side's colour. A bar whose value has come
    /// from the player stands there already and is left alone.
    void showPanel(const SidePanel& panel, bool isTurn);

    QScrollBar* scrollSpeed() const { return m_scrollSpeed; }
    QScrollBar* scrollAngle() const { return m_scrollAngle; }

  signals:
    void speedMoved(int side, int value);
    void angleMoved(int side, int value);

  private:
    QLabel *m_labelSpeed, *m_labelAngle, *m_labelMenLeft;
    QLabel *m_labelLastSpeed, *m_labelLastAngle, *m_labelLastLanding;
    QScrollBar *m_scrollSpeed, *m_scrollAngle;
    QtMenGauge* m_menGauge;
};

}  // namespace skylob
