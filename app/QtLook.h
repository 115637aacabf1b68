#pragma once

class QLabel;
class QWidget;

namespace skylob {

/// Gives a screen the program's colours, fonts, style sheet and icon, and with it everything in
/// it. To be called before the screen's size is set. Message and input boxes stay as the desktop
/// draws them.
void applyLook(QWidget& screen);

/// Moves a window of fixed size to the middle of its display.
void centreOnDisplay(QWidget& screen);

/// Changes a property that the style sheet selects by, and lets the change show.
void setStyleProperty(QWidget& widget, const char* name, int value);

}  // namespace skylob
