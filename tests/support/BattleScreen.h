#pragma once

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <memory>

#include "battle/qt/frmPlayGame.h"
#include "battle/qt/picGameField.h"
#include "controls/qt/GlintButton.h"
#include "look/qt/QtShapes.h"
#include "tests/support/BattleRig.h"

namespace skylob::test {

/// Runs a script at every counted wait, that is while a shell is in the air.
class InterruptedPacer : public InstantPacer {
  public:
    void countedWait(std::int32_t) override {
        if (duringFlight) duringFlight();
    }
    void yieldToEvents() override {
        QCoreApplication::processEvents();
        if (atYield) atYield();
    }
    void waitWatched(float, const Watch& watch) override {
        for (const std::int32_t left : {61'000, 60'000, 1}) {
            watch(left);
            QCoreApplication::processEvents();
            if (inStorm) inStorm(left);
        }
    }
    std::function<void()> duringFlight, atYield;
    std::function<void(std::int32_t)> inStorm;
};

/// The battle screen, shown, on the field that chance of 0.5 makes (see BattleRig).
struct Screen {
    enum User { KnowsTheGame, NewUser };

    explicit Screen(int size = 2, std::string name = "Ann", std::string opponent = "Bob",
                    User user = KnowsTheGame) {
        if (user == KnowsTheGame) windows.keep("HintsSeen", "1");
        shared.PlayerName = {std::move(name), std::move(opponent)};
        shared.ScreenSize = size;
        shared.NumRounds = 5;
        settings.save("GameSpeed", "99");
        settings.save("SoundSetting", "0");
        form = std::make_unique<frmPlayGame>(
            QtScreenPorts{shared, settings, shapes, windows},
            BattlePorts{random, clock, pacer, sounds, boxes, settings});
        form->show();
        form->activateWindow();
        (void)QTest::qWaitForWindowActive(form.get());
    }

    QScrollBar* bar(const char* name) { return form->findChild<QScrollBar*>(name); }
    QCheckBox* box(const char* name) { return form->findChild<QCheckBox*>(name); }
    GlintButton* shoot() { return form->findChild<GlintButton*>("cmdShoot"); }
    picGameField* field() { return form->findChild<picGameField*>(); }
    bool shows(const QString& text) {
        for (const QLabel* label : form->findChildren<QLabel*>())
            if (label->text() == text && label->isVisible()) return true;
        return false;
    }
    std::size_t shots() const { return form->battle().shots().size(); }

    const QtShapes shapes{programDrawings()};
    Log log;
    basSkylob shared;
    ScriptedRandom random{{0.1}, 0.5};  // the first shooter is side 1
    HandSetClock clock;
    InterruptedPacer pacer;
    SilentSounds sounds;
    QueuedBoxes boxes{log};
    MemorySettings settings;
    MemoryWindows windows;
    std::unique_ptr<frmPlayGame> form;
};

}  // namespace skylob::test
