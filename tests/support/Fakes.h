#pragma once

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/Clock.h"
#include "base/LinkOpener.h"
#include "base/NullPorts.h"
#include "base/RandomInt.h"

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
    void waitWatched(float seconds, const Watch& watch) override {
        Wait(seconds);
        for (const std::int32_t left : millisecondsLeft) watch(left);
    }
    void yieldToEvents() override {
        log.push_back("yield");
        if (const auto action = std::exchange(onYield, {})) action();
    }

    Log& log;
    std::vector<std::int32_t> counts;  ///< since the last startPacing()
    std::function<void()> onYield;     ///< run once, at the next yield
    std::function<void()> onWait;
    std::vector<std::int32_t> millisecondsLeft;  ///< when a watch is called
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
        if (onShow) onShow();
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

}  // namespace skylob::test
