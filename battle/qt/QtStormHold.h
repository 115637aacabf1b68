#pragma once

#include <QList>
#include <QSignalBlocker>
#include <QString>
#include <memory>
#include <vector>

class QLabel;
class QWidget;

namespace skylob {

/// The battle screen while a storm holds the field, as long as this object lives: an hourglass for
/// a pointer, the controls dim under a veil, and nothing that they report heard. They stay enabled.
class QtStormHold {
  public:
    /// The veil covers `screen` below the line, whose text is put back in the end. `controls`
    /// report to the rules; what else than input could move them is a screen reader.
    QtStormHold(QWidget& screen, QLabel& line, const QList<QObject*>& controls);
    ~QtStormHold();

    QtStormHold(const QtStormHold&) = delete;
    QtStormHold& operator=(const QtStormHold&) = delete;

    /// Brings the veil in line with the screen's present size.
    void fitVeil();

  private:
    QWidget& m_screen;
    QLabel& m_line;
    const QString m_lineBefore;
    const std::unique_ptr<QWidget> m_veil;
    std::vector<QSignalBlocker> m_deaf;
};

}  // namespace skylob
