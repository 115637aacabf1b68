#pragma once

#include <functional>

class QWidget;

namespace skylob {

class Battle;
class QtBattleControls;

/// Gives the screen the keys that no caption tells; `quit` is what Escape does. Battle and controls
/// must live as long as it.
void addBattleKeys(QWidget& screen, Battle& battle, const QtBattleControls& controls,
                   std::function<void()> quit);

/// The way that Tab takes: the sides, the commands, the options.
void orderTabs(const QtBattleControls& controls);

}  // namespace skylob
