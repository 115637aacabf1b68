#pragma once

#include <QObject>

#include "battle/TypedNumber.h"

class QLabel;
class QScrollBar;
class QTimer;

namespace skylob {

/// The wheel moves the bar by its single step a notch, with Ctrl by its page step.
class QtBarWheel : public QObject {
    Q_OBJECT

  public:
    /// Belongs to the bar.
    explicit QtBarWheel(QScrollBar* bar);

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    QScrollBar* m_bar;
    int m_turned = 0;  ///< less than a notch, in eighths of a degree
};

/// Digits typed while the bar has the focus make a number, which is seen on the bar as it grows.
/// The bar is set once, when it is complete, or a second after its last digit, or when the bar
/// loses the focus.
class QtBarDigits : public QObject {
    Q_OBJECT

  public:
    /// Belongs to the bar.
    QtBarDigits(QScrollBar* bar, const BarRange& range);

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void type(int digit);
    void finish();
    void set(std::optional<int> value);
    void showDigits();

    QScrollBar* m_bar;
    TypedNumber m_number;
    QTimer* m_patience;
    QLabel* m_digits;
};

}  // namespace skylob
