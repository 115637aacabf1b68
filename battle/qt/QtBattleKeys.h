#pragma once

#include <functional>

#include "base/PerSide.h"

class QWidget;

namespace skylob {

class Battle;
class GlintButton;
class QtOptionStrip;
class QtSidePanel;

/// What the keyboard reaches on the battle screen.
struct QtBattleControls {
    PerSide<QtSidePanel*> side;
    GlintButton *cmdShoot, *cmdQuit;
    QtOptionStrip* strip;
};

/// Gives the screen the keys that no caption tells; `quit` is what Escape does. Battle and controls
/// must live as long as it.
void addBattleKeys(QWidget& screen, Battle& battle, const QtBattleControls& controls,
                   std::function<void()> quit);

/// The way that Tab takes: the sides, the commands, the options.
void orderTabs(const QtBattleControls& controls);

}  // namespace skylob
