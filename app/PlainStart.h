#pragma once

#include "app/CommandLine.h"
#include "base/WindowStore.h"

namespace skylob {

/// The memories of windows as a run that was started with --plain has them: without light over
/// the battlefield until the player wants it otherwise. What was remembered before stays.
class PlainStart final : public WindowStore {
  public:
    /// `store` must outlive it.
    PlainStart(WindowStore& store, const CommandLine& commandLine)
        : m_store{store}, m_plain{commandLine.plain} {}

    std::string recall(std::string_view key, std::string_view fallback) const override {
        return m_plain && key == kEffectsKey ? "0" : m_store.recall(key, fallback);
    }
    void keep(std::string_view key, std::string_view value) override {
        if (key == kEffectsKey) m_plain = false;
        m_store.keep(key, value);
    }

  private:
    WindowStore& m_store;
    bool m_plain;
};

}  // namespace skylob
