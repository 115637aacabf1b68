#pragma once

#include <QColor>
#include <QWidget>

namespace skylob {

/// A bar that is full at 100 men.
class QtMenGauge : public QWidget {
    Q_OBJECT

  public:
    explicit QtMenGauge(QWidget* parent);

    void showMen(int menLeft, const QColor& colour);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int m_menLeft = 0;
    QColor m_colour;
};

}  // namespace skylob
