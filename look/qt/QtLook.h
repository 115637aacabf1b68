#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>
#include <initializer_list>

#include "look/Theme.h"

class QLabel;
class QWidget;

namespace skylob {

/// The theme's typefaces.
QStringList fontFamilies();

/// For all windows, read once: the toolkit keeps what it has shown of every icon that is made.
QIcon programIcon();

/// Gives a screen or a box the program's colours, fonts and style sheet, and with it everything in
/// it. To be called before its size is set.
void applyLook(QWidget& screen);

/// Shows a text in a label of fixed width, in the first of the sizes (pixels) in which it fits. In
/// the last one it is cut at its end if it has to be, and stands whole in the tool tip.
void showFitting(QLabel& label, const QString& text, std::initializer_list<int> sizes);

/// Changes a property that the style sheet selects by, and lets the change show.
void setStyleProperty(QWidget& widget, const char* name, int value);

}  // namespace skylob
