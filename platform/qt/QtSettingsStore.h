#pragma once

#include "base/SettingsStore.h"
#include "platform/qt/QtIniFile.h"

namespace skylob {

/// The per-user settings, <config folder>/Skylob/Skylob.ini, section "Defaults".
class QtSettingsStore final : public SettingsStore {
  public:
    QtSettingsStore();

    std::string get(std::string_view key, std::string_view fallback) const override;
    void save(std::string_view key, std::string_view value) override;

  private:
    QtIniFile m_file;
};

}  // namespace skylob
