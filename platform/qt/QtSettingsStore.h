#pragma once

#include <QSettings>
#include <map>
#include <optional>

#include "base/SettingsStore.h"

namespace skylob {

/// The per-user settings file, <config folder>/Skylob/Skylob.ini, section "Defaults". A file that
/// cannot be written costs no more than the memory of the change. What stands in the file's place
/// and is none, a folder or a pipe, is left alone after one line on standard error.
///
/// Writers keep each other out by a lock file. Changes that find it taken by somebody who does
/// not give it back are written with the next one, after one line on standard error; only the
/// first of them waits, half a second.
class QtSettingsStore final : public SettingsStore {
  public:
    QtSettingsStore();

    std::string get(std::string_view key, std::string_view fallback) const override;
    void save(std::string_view key, std::string_view value) override;

  private:
    bool mayWrite();

    std::optional<QSettings> m_settings;
    std::map<QString, QString> m_unsaved;  ///< newer than the file
    bool m_isLocked = false;               ///< it was, when last looked at
};

}  // namespace skylob
