#pragma once

#include <QList>
#include <QSignalBlocker>
#include <memory>
#include <vector>

class QWidget;

namespace skylob {

/// The battle screen while a storm holds the field, as long as this object lives: an hourglass for
/// a pointer, the controls dim under a veil, and nothing that they report heard. They stay enabled.
class QtStormHold {
  public:
    /// The veil covers `screen` from `top` downwards. `controls` are those whose signals are not to
    /// reach the rules: though input is held, a screen reader could still move them.
    QtStormHold(QWidget& screen, int top, const QList<QObject*>& controls);
    ~QtStormHold();

    QtStormHold(const QtStormHold&) = delete;
    QtStormHold& operator=(const QtStormHold&) = delete;

    /// Brings the veil in line with the screen's present size.
    void fitVeil(int top);

  private:
    QWidget& m_screen;
    const std::unique_ptr<QWidget> m_veil;
    std::vector<QSignalBlocker> m_deaf;
};

}  // namespace skylob
