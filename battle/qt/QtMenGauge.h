#pragma once

#include <QColor>
#include <QWidget>

namespace skylob {

/// A bar that is full at 100 men. Screen readers hear of the men from it.
class QtMenGauge : public QWidget {
    Q_OBJECT

  public:
    explicit QtMenGauge(QWidget* parent);

    /// Makes screen readers find a gauge with its value in all of them.
    static void installAccessible();

    void showMen(int menLeft, const QColor& colour);
    int menLeft() const { return m_menLeft; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int m_menLeft = 0;
    QColor m_colour;
};

}  // namespace skylob
