#include "battle/record/BattleReplay.h"

#include "base/NullPorts.h"
#include "battle/BattleSettings.h"
#include "battle/HeadlessBattle.h"
#include "battle/record/RecordWords.h"

namespace skylob {

namespace {

void click(const BoxLine& line, BattleOptions& options) {
    switch (line.box) {
        case Box::Sound:
            return options.chkSound_Click(line.ticked);
        case Box::Trajectory:
            return options.chkTrajectory_Click(line.ticked);
        case Box::Meteors:
            return options.chkMeteors_Click(line.ticked);
        case Box::Lightning:
            return options.chkLightning_Click(line.ticked);
        case Box::Wind:
            return options.chkWind_Click(line.ticked);
    }
}

std::string withoutFeed(std::string text) {
    text.pop_back();
    return text;
}

}  // namespace

bool BattleReplay::wasLeftHere() const {
    return !isOver() && std::holds_alternative<LeftLine>(next());
}

void BattleReplay::aim(Battle& battle) const {
    if (isOver()) return;
    if (const auto* shot = std::get_if<ShotLine>(&next())) {
        battle.aims().setSpeed(shot->side, shot->speed);
        battle.aims().setAngle(shot->side, shot->angle);
    }
}

void BattleReplay::act(Battle& battle) {
    if (isOver()) return;
    const std::size_t before = m_next;
    aim(battle);
    giveCommand(battle);
    if (m_next == before && !m_difference) differ("it is the turn of the other side, or of nobody");
}

void BattleReplay::giveCommand(Battle& battle) const {
    const RecordLine& line = next();
    if (const auto* box = std::get_if<BoxLine>(&line))
        battle.asThePlayer([&] { click(*box, battle.options()); });
    else if (std::holds_alternative<ShotLine>(line))
        battle.asThePlayer([&] { battle.cmdShoot_Click(); });
    else if (std::holds_alternative<LeftLine>(line))
        battle.cmdQuit_Click();
}

/// What is drawn next belongs to the recording's next line.
void BattleReplay::rulesDraw() {
    if (!isOver()) {
        if (const auto draws = drawsOf(next())) random().moveTo(*draws);
    }
    BattleScribe::rulesDraw();
}

void BattleReplay::add(const RecordLine& line) {
    if (isOver()) return;
    // Who watches may leave at any time.
    if (std::holds_alternative<LeftLine>(line) && !wasLeftHere()) return;
    if (line == next())
        ++m_next;
    else
        differ(withoutFeed(textOf(line)));
}

void BattleReplay::differ(const std::string& played) {
    m_difference = {kFirstRecordLine + m_next, withoutFeed(textOf(next())), played};
}

basSkylob startOf(const BattleRecord& record) {
    basSkylob shared;
    shared.PlayerName = record.header.names;
    shared.SkillLevel = record.header.skillLevel;
    shared.NumRounds = record.header.rounds;
    return shared;
}

void putOptions(const BattleRecord& record, SettingsStore& store) {
    BattleState state;
    for (const Box box : record.header.ticked)
        state.*kTickedBoxes.at(static_cast<std::size_t>(box)) = true;
    saveOptions(state, store);
    store.save("GameSpeed", std::to_string(record.header.gameSpeed));
}

std::optional<BattleReplay::Difference> replayWithoutScreen(const BattleRecord& record) {
    basSkylob shared = startOf(record);
    SeededRandom random{record.header.seed};
    StoppedClock clock;
    InstantPacer pacer;
    SilentSounds sounds;
    AgreeingBoxes boxes;
    MemorySettings settings;
    putOptions(record, settings);
    HeadlessView view;
    BattleReplay replay{record, random};
    Battle battle{shared, {random, clock, pacer, sounds, boxes, settings, &replay}, view};
    battle.watch();
    battle.Form_Activate();
    view.runQueue();
    while (!replay.isOver()) {
        replay.act(battle);
        view.runQueue();
    }
    return replay.difference();
}

}  // namespace skylob
