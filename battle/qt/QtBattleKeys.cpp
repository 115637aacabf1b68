#include "battle/qt/QtBattleKeys.h"

#include <QCheckBox>
#include <QScrollBar>
#include <QShortcut>
#include <utility>

#include "battle/Battle.h"
#include "battle/qt/QtBattleControls.h"
#include "battle/qt/QtOptionStrip.h"
#include "battle/qt/QtSidePanel.h"
#include "controls/qt/GlintButton.h"

namespace skylob {

void addBattleKeys(QWidget& screen, Battle& battle, const QtBattleControls& controls,
                   std::function<void()> quit) {
    const auto onKey = [&screen](const QKeySequence& key, std::function<void()> action) {
        auto* shortcut = new QShortcut{key, &screen};
        shortcut->setAutoRepeat(false);  // a key that is held is pressed once
        QObject::connect(shortcut, &QShortcut::activated, &screen, std::move(action));
    };
    const auto shooterSide = [&battle, &controls] { return controls.side(battle.state().Shooter); };
    const auto* const strip = controls.strip();
    onKey(Qt::Key_Escape, std::move(quit));
    onKey(Qt::Key_F1, [&battle] { battle.readRules(); });
    onKey(Qt::Key_F11,
          [&screen] { screen.setWindowState(screen.windowState() ^ Qt::WindowFullScreen); });
    onKey(Qt::ALT | Qt::Key_P, [shooterSide] { shooterSide()->scrollSpeed()->setFocus(); });
    onKey(Qt::ALT | Qt::Key_A, [shooterSide] { shooterSide()->scrollAngle()->setFocus(); });
    onKey(Qt::ALT | Qt::Key_G, [strip] { strip->gameSpeed()->setFocus(); });
    onKey(Qt::ALT | Qt::Key_V, [strip] { strip->volume()->setFocus(); });
    onKey(Qt::ALT | Qt::Key_W, [strip] { strip->wind()->click(); });
    if (controls.shoot()->plainCaption().isEmpty())
        onKey(Qt::ALT | Qt::Key_S, [&battle] { battle.cmdShoot_Click(); });
}

void orderTabs(const QtBattleControls& controls) {
    QList<QWidget*> order;
    for (const int side : kSides)
        order << controls.side(side)->scrollSpeed() << controls.side(side)->scrollAngle();
    order += controls.commands();
    for (qsizetype i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace skylob
