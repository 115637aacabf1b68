#pragma once

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/LinkOpener.h"
#include "app/basSkylob.h"
#include "battle/Battle.h"
#include "battle/HeadlessBattle.h"

namespace skylob::test {

/// Gives the listed numbers in turn; then `rest` for ever, or an error when there is none.
class ScriptedRandom : public RandomSource {
  public:
    explicit ScriptedRandom(std::deque<double> script, std::optional<double> rest = std::nullopt)
        : m_script{std::move(script)}, m_rest{rest} {}

    double next() override {
        ++m_draws;
        if (m_script.empty()) {
            if (m_rest) return *m_rest;
            throw std::logic_error("the script of chance has run dry");
        }
        const double r = m_script.front();
        m_script.pop_front();
        return r;
    }

    void script(std::deque<double> numbers) { m_script = std::move(numbers); }
    int draws() const { return m_draws; }

  private:
    std::deque<double> m_script;
    std::optional<double> m_rest;
    int m_draws = 0;
};

struct HandSetClock : Clock {
    DateTime now() const override { return time; }
    DateTime time{};
};

/// What happened, in order: one log that all the recorders below write into.
using Log = std::vector<std::string>;

struct RecordingPacer : Pacer {
    explicit RecordingPacer(Log& events) : log{events} {}

    void startPacing() override { counts.clear(); }
    void countedWait(std::int32_t count) override { counts.push_back(count); }
    void Wait(float seconds) override {
        log.push_back("wait " + std::to_string(waitMilliseconds(seconds)));
        if (onWait) onWait();
    }
    void yieldToEvents() override {
        log.push_back("yield");
        if (const auto action = std::exchange(onYield, {})) action();
    }

    Log& log;
    std::vector<std::int32_t> counts;  ///< since the last startPacing()
    std::function<void()> onYield;     ///< run once, at the next yield
    std::function<void()> onWait;
};

struct RecordingSounds : SoundPlayer {
    explicit RecordingSounds(Log& events) : log{events} {}
    void PlaySound(std::string_view name) override { log.push_back("sound " + std::string{name}); }

    Log& log;
};

struct RecordingLinks : LinkOpener {
    bool open(const std::string& target) override {
        targets.push_back(target);
        return works;
    }
    std::vector<std::string> targets;
    bool works = true;
};

/// Answers from a queue; a box that nobody expected is an error.
struct QueuedBoxes : MessageBoxes {
    explicit QueuedBoxes(Log& events) : log{events} {}

    BoxAnswer show(const MessageBox& box) override {
        log.push_back("box " + box.title);
        if (answers.empty()) throw std::logic_error("unexpected box: " + box.title);
        if (onShow) onShow();
        constexpr const char* kIcons[] = {"", " (?)", " (!)"};
        shown.push_back(box.title + ": " + box.text + kIcons[static_cast<int>(box.icon)]);
        if (box.buttons == BoxButtons::YesNo)
            shown.back() += box.preset == BoxAnswer::Yes ? " Yes/no" : " yes/No";
        const BoxAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::optional<std::string> ask(const InputBox& box) override {
        log.push_back("ask " + box.title);
        if (entries.empty()) throw std::logic_error("unexpected question: " + box.prompt);
        asked.push_back(box.title + ": " + box.prompt + " [" + box.entry + "]");
        const auto entry = entries.front();
        entries.pop_front();
        return entry;
    }

    Log& log;
    std::deque<BoxAnswer> answers;
    std::deque<std::optional<std::string>> entries;
    /// "Title: Text" with icon and buttons, "Title: Prompt [Entry]".
    std::vector<std::string> shown, asked;
    std::function<void()> onShow;
};

struct RecordingView : HeadlessView {
    explicit RecordingView(Log& events) : log{events} {}

    void showField() override {
        if (onShowField) onShowField();
    }
    void showPanel(const BattlePanel& shown) override {
        panel = shown;
        ++panelsShown;
    }
    int displayWidth() const override { return width; }
    void holdInput() override { inputHeld = true; }
    void releaseInput() override {
        inputHeld = false;
        log.push_back("release input");
    }
    void queue(std::function<void()> task) override {
        log.push_back("queue");
        HeadlessView::queue(std::move(task));
    }
    void showSummary(SummaryKind kind) override {
        log.push_back(kind == SummaryKind::Round ? "summary Round" : "summary Set");
    }
    void showCursor(BattleCursor cursor) override {
        if (cursor == BattleCursor::Hourglass) log.push_back("hourglass");
    }
    void closeBattle() override {
        log.push_back("close");
        HeadlessView::closeBattle();
    }

    Log& log;
    BattlePanel panel;  ///< as it was last shown
    int panelsShown = 0;
    std::function<void()> onShowField;
    bool inputHeld = false;
    int width = 801;
};

struct Aim {
    int speed, angle;
};

/// A battle between "Ann" and "Bob" (or the computer) with every port in the test's hands.
/// Chance is r = 0.5 unless the test scripts it. That makes, in every round, a field with
/// level ground of height 105 up to column 325, a mountain with its top of 720 at 550, ground of
/// 28 from column 725 to 878, and pieces in columns 163 and 863; a deserting side loses 8 men.
struct BattleRig {
    explicit BattleRig(std::string opponent = "Bob", int rounds = 5) {
        shared.PlayerName = {"Ann", std::move(opponent)};
        shared.NumRounds = rounds;
        settings.save("SoundSetting", "0");
        settings.save("GameSpeed", "99");
    }

    void start() { battle.Form_Activate(); }

    /// Aims for the side whose turn it is, fires, and runs what that queued.
    void shoot(const Aim& aim) {
        fire(aim);
        view.runQueue();
    }
    void fire(const Aim& aim) {
        battle.controls().setSpeed(state().Shooter, aim.speed);
        battle.controls().setAngle(state().Shooter, aim.angle);
        battle.cmdShoot_Click();
    }

    BattleControls& controls() { return battle.controls(); }
    const BattlePanel& panel() const { return view.panel; }
    const BattleState& state() const { return battle.state(); }
    bool bothTimersRun() const { return panel().timerMeteors && panel().timerLightning; }

    Log log;
    basSkylob shared;
    ScriptedRandom random{{}, 0.5};
    HandSetClock clock;
    RecordingPacer pacer{log};
    RecordingSounds sounds{log};
    QueuedBoxes boxes{log};
    MemorySettings settings;
    RecordingView view{log};
    Battle battle{shared, {random, clock, pacer, sounds, boxes, settings, view}};
};

/// A battle that waits for side 1, with nothing in its log yet.
struct StartedRig : BattleRig {
    explicit StartedRig(int rounds = 5) : BattleRig{"Bob", rounds} {
        random.script({0});
        start();
        log.clear();
    }
};

}  // namespace skylob::test
