#pragma once

#include <QLabel>

namespace skylob {

/// A line of text that leads somewhere: it can be clicked, or pressed with Space or Enter.
class QtLinkLabel : public QLabel {
    Q_OBJECT

  public:
    QtLinkLabel(const QString& text, QWidget* parent);

    /// Makes screen readers find links in all of them, with a press action.
    static void installAccessible();

  signals:
    void Click();

  protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace skylob
