#pragma once

#include <QString>

#include "ContrastTable.h"

class QWidget;

namespace skylob {

/// Goes through the states of a screen as a player's hands do, and measures what is seen in each.
class Tour {
  public:
    /// Pictures are kept in the folder, if there is one. The table must outlive the tour.
    Tour(ContrastTable& table, const QString& folder) : m_table{table}, m_folder{folder} {}

    /// What passes within seconds is told without limits.
    enum class Limits { All, None };

    /// The window as it is now.
    void look(QWidget& window, const QString& place, const QString& state,
              Limits limits = Limits::All);

    /// The same, and each of its controls with the focus, under the pointer, pressed, disabled and,
    /// if it can be ticked, the other way. Nothing is clicked.
    void visit(QWidget& window, const QString& place);

    /// A mark on a picture of the place.
    void add(const QString& place, const QString& state, const Part& part, const QImage& picture);

  private:
    void measure(QWidget& widget, const QString& place, const QString& state,
                 Limits limits = Limits::All);
    void measureFocus(QWidget& control, const QString& place, const QString& state);
    void measurePointer(QWidget& control, const QString& place);
    void measureDisabled(QWidget& control, const QString& place);

    ContrastTable& m_table;
    QString m_folder;
};

/// A picture of a widget as it is seen on its window.
QImage seen(QWidget& widget);

}  // namespace skylob
