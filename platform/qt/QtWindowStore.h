#pragma once

#include "base/WindowStore.h"
#include "platform/qt/QtIniFile.h"

namespace skylob {

/// What is remembered of windows, <config folder>/Skylob/Windows.ini, section "Windows".
class QtWindowStore final : public WindowStore {
  public:
    QtWindowStore();

    std::string recall(std::string_view key, std::string_view fallback) const override;
    void keep(std::string_view key, std::string_view value) override;

  private:
    QtIniFile m_file;
};

}  // namespace skylob
