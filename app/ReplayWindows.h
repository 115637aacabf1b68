#pragma once

#include "base/WindowStore.h"

namespace skylob {

/// The memories of windows as a replay has them: what it changes is forgotten.
class ReplayWindows final : public WindowStore {
  public:
    /// `store` must outlive it.
    explicit ReplayWindows(const WindowStore& store) : m_store{store} {}

    std::string recall(std::string_view key, std::string_view fallback) const override {
        return m_store.recall(key, fallback);
    }
    void keep(std::string_view, std::string_view) override {}

  private:
    const WindowStore& m_store;
};

}  // namespace skylob
