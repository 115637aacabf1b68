#pragma once

#include <QEvent>

namespace skylob {

/// Whether events of this kind are what the user does with mouse, keys or touch.
bool isInput(QEvent::Type type);

}  // namespace skylob
