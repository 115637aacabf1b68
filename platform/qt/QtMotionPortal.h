#pragma once

#include <functional>

#include "base/Motion.h"

class QObject;

namespace skylob {

/// Asks the desktop's settings portal, over the session bus, how much motion the user can bear, and
/// has `answer` called with that later, from the event loop, as long as `context` lives. Where
/// there is no bus or no portal it is never called.
void askForMotion(QObject* context, std::function<void(Motion)> answer);

}  // namespace skylob
