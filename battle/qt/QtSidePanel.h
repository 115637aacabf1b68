#pragma once

#include "battle/BattlePanel.h"
#include "battle/qt/frmPlayGameLayout.h"
#include "screen/qt/QtSideFrame.h"

class QLabel;
class QScrollBar;

namespace skylob {

class QtMenGauge;

/// A horizontal scroll bar over the range of `bar`, usable by keyboard.
QScrollBar* makeScrollBar(const ScrollBar& bar, const QRect& place, QWidget* parent);

/// Puts a value on a scroll bar without its telling anybody.
void showValue(QScrollBar& widget, const ScrollBar& bar);

/// One side's frame: name, speed and angle, men left.
class QtSidePanel : public QtSideFrame {
    Q_OBJECT

  public:
    /// `caption` is plain text.
    QtSidePanel(int side, const QString& caption, const SidePanelLayout& layout, QWidget* parent);

    /// Follows the panel; `isTurn` gives the frame its side's colour.
    void showPanel(const SidePanel& panel, bool isTurn);

    QScrollBar* scrollSpeed() const { return m_scrollSpeed; }
    QScrollBar* scrollAngle() const { return m_scrollAngle; }

  signals:
    void speedMoved(int side, int value);
    void angleMoved(int side, int value);

  private:
    QLabel *m_labelSpeed, *m_labelAngle, *m_labelMenLeft;
    QScrollBar *m_scrollSpeed, *m_scrollAngle;
    QtMenGauge* m_menGauge;
};

}  // namespace skylob
