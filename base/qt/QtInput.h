#pragma once

#include <QKeyEvent>

namespace skylob {

/// Whether events of this kind are what the user does with mouse, keys or touch.
bool isInput(QEvent::Type type);

/// Whether the key is without Shift or the like.
bool isAlone(const QKeyEvent& event);

/// Whether it is one of the two Enter keys, with whatever is held besides.
bool isEnterKey(const QKeyEvent& event);

/// Whether it is one of them alone.
inline bool isEnter(const QKeyEvent& event) {
    return isEnterKey(event) && isAlone(event);
}

}  // namespace skylob
