#pragma once

#include <QScrollArea>

namespace skylob {

/// The ground on which a screen's widgets stand where the window's size is not fixed. It fills the
/// screen. Where that is smaller than the widgets need, it scrolls, and follows the keyboard focus.
class QtScrollBoard : public QScrollArea {
    Q_OBJECT

  public:
    /// `screen` is to be the parent as well; `smallest` is what the widgets need.
    QtScrollBoard(const QSize& smallest, QWidget* screen);
    ~QtScrollBoard() override;

    /// What the widgets are to be children of.
    QWidget* board() const { return widget(); }

    /// Brings the widget that has the keyboard focus into view.
    void followFocus();

  signals:
    void boardResized();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace skylob
