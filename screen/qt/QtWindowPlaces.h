#pragma once

#include <QSize>

class QString;
class QWidget;

namespace skylob {

class QtScreen;
class WindowStore;

// Where the screens that may grow have been left: place, size and state, by the screen's name. A
// desktop may choose places itself.

/// Notes where a screen that is shown stands.
void keepPlace(const QtScreen& screen, WindowStore& windows);

/// Which remembered places hold for a screen that comes after another one. Its size always does.
enum class PlaceMemory { OnAnyDisplay, OnItsDisplay };

/// Brings a screen that has not been shown yet to where it was left, wholly onto one display. A
/// screen of which nothing is remembered, or whose place does not hold, comes up over the one
/// `before` it, which may be null. One that may grow becomes no larger than its display.
void bringToPlace(QtScreen& screen, const WindowStore& windows, const QWidget* before,
                  PlaceMemory memory);

/// Has a screen that will come up on the display of the one `before` it scroll where that leaves
/// too little room.
void fitToDisplayOf(QtScreen& screen, const QWidget* before);

/// How large the screen of that name can be on the display to which it would be brought.
QSize roomForScreen(const QString& name, const WindowStore& windows, const QWidget* before,
                    PlaceMemory memory);

}  // namespace skylob
