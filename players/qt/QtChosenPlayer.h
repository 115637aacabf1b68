#pragma once

#include <QLabel>

#include "screen/qt/QtSideFrame.h"

namespace skylob {

/// The frame of a chosen player on the player list screen: the name, or a slot for one with a
/// hint.
class QtChosenPlayer : public QtSideFrame {
    Q_OBJECT

  public:
    QtChosenPlayer(int side, QWidget* parent);

    /// Plain text; an empty name shows the slot. Names too wide are written smaller, then cut, with
    /// the whole name as tool tip.
    void setName(const QString& name);

    /// The name's label, which takes the focus on side 1 while there is a name to take back.
    QLabel* labelPlayerName() const { return m_name; }

  signals:
    /// A double-click on the name, or Enter while it has the focus.
    void nameDoubleClicked();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QString m_shownName;
    QLabel *m_name, *m_hint;
};

}  // namespace skylob
