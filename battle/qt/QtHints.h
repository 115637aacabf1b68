#pragma once

#include <QLabel>

#include "base/WindowStore.h"

namespace skylob {

class GlintButton;
class QtSidePanel;

/// A bubble with a word to a new player. It takes no focus; a click on it is that it has been read.
class QtHint : public QLabel {
    Q_OBJECT

  public:
    QtHint(const QString& name, const QString& text, QWidget* parent);

  signals:
    void wasRead();

  protected:
    void mousePressEvent(QMouseEvent*) override { emit wasRead(); }
};

/// What a new player is told in the very first battle, once: what the two bars and Shoot are for.
/// Each hint goes when its control is used, all of them with a click on one or with the first shot.
class QtHints : public QObject {
    Q_OBJECT

  public:
    /// True until hints have been shown to this user.
    static bool areWanted(const WindowStore& windows);

    /// Shows them at once, beside the controls of `panel`, whose turn it is, and in the empty `row`
    /// above `shoot`; and remembers that. They go with these where the screen grows. Belongs to the
    /// screen that all of these are on.
    QtHints(QtSidePanel* panel, GlintButton* shoot, QWidget* row, WindowStore& windows);

    void end();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QtHint* add(const char* name, const QString& text, QWidget* parent);
    void placeAboveShoot();

    GlintButton* m_shoot;
    QWidget* m_row;
    QtHint* m_shootHint;
    QList<QtHint*> m_hints;
};

}  // namespace skylob
