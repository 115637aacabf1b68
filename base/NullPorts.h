#pragma once

#include <functional>
#include <map>
#include <string>

#include "base/Clock.h"
#include "base/MessageBoxes.h"
#include "base/Pacer.h"
#include "base/SettingsStore.h"
#include "base/SoundPlayer.h"
#include "base/WindowStore.h"

/// Ports that lead nowhere: for programs that want the rules without a world around them.
namespace skylob {

/// Always the first moment of 1970.
class StoppedClock : public Clock {
  public:
    DateTime now() const override { return {}; }
};

/// Takes no time.
class InstantPacer : public Pacer {
  public:
    void startPacing() override {}
    void countedWait(std::int32_t) override {}
    void Wait(float) override {}
    void waitWatched(float, const Watch&) override {}
    void yieldToEvents() override {}
};

class SilentSounds : public SoundPlayer {
  public:
    void PlaySound(std::string_view) override {}
};

/// Answers Yes to every question.
class AgreeingBoxes : public MessageBoxes {
  public:
    BoxAnswer show(const MessageBox& box) override;
    std::optional<std::string> ask(const InputBox& box) override;
};

/// Settings and memories that last as long as the object.
class MemorySettings : public SettingsStore {
  public:
    std::string get(std::string_view key, std::string_view fallback) const override;
    void save(std::string_view key, std::string_view value) override;

  private:
    std::map<std::string, std::string, std::less<>> m_values;
};

class MemoryWindows : public WindowStore {
  public:
    std::string recall(std::string_view key, std::string_view fallback) const override;
    void keep(std::string_view key, std::string_view value) override;

  private:
    MemorySettings m_values;
};

}  // namespace skylob
