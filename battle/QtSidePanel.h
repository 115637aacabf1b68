#pragma once

#include <QGroupBox>

#include "battle/BattlePanel.h"
#include "battle/frmPlayGameLayout.h"

class QLabel;
class QScrollBar;

namespace skylob {

class QtMenGauge;

/// A horizontal scroll bar over the range of `bar`, usable by keyboard.
QScrollBar* makeScrollBar(const ScrollBar& bar, const QRect& place, QWidget* parent);

/// Puts a value on a scroll bar without its telling anybody.
void showValue(QScrollBar& widget, const ScrollBar& bar);

/// One side's frame: name, speed and angle, men left. A round badge marks side 1 and a diamond
/// side 2, so that colour is never the only difference.
class QtSidePanel : public QGroupBox {
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

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int m_side;
    bool m_isTurn = false;
    QLabel *m_labelSpeed, *m_labelAngle, *m_labelMenLeft;
    QScrollBar *m_scrollSpeed, *m_scrollAngle;
    QtMenGauge* m_menGauge;
};

}  // namespace skylob
