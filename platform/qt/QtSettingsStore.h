#pragma once

#include <QSettings>

#include "base/SettingsStore.h"

namespace skylob {

/// The per-user settings file, <config folder>/Skylob/Skylob.ini, section "Defaults". A file
/// that cannot be written costs no more than the memory of the change.
class QtSettingsStore final : public SettingsStore {
  public:
    QtSettingsStore();

    std::string get(std::string_view key, std::string_view fallback) const override;
    void save(std::string_view key, std::string_view value) override;

  private:
    QSettings m_settings;
};

}  // namespace skylob
