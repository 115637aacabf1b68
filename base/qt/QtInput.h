#pragma once

#include <QKeyEvent>

namespace skylob {

/// Whether events of this kind are what the user does with mouse, keys or touch.
bool isInput(QEvent::Type type);

/// Whether it is one of the two Enter keys, without Shift or the like.
bool isEnter(const QKeyEvent& event);

}  // namespace skylob
