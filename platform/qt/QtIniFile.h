#pragma once

#include <QSettings>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace skylob {

/// A per-user file <config folder>/Skylob/<name>.ini of texts by key, all in one section. A file
/// that cannot be written costs no more than the memory of the change. What stands in the file's
/// place and is none, a folder or a pipe, is left alone after one line on standard error.
///
/// Writers keep each other out by a lock file. Changes that find it taken by somebody who does
/// not give it back are written with the next one, after one line on standard error; only the
/// first of them waits, half a second.
class QtIniFile {
  public:
    QtIniFile(const QString& name, QString section);

    std::string get(std::string_view key, std::string_view fallback) const;
    void save(std::string_view key, std::string_view value);

  private:
    QString path(std::string_view key) const;
    bool mayWrite();

    QString m_section;
    std::optional<QSettings> m_file;
    std::map<QString, QString> m_unsaved;  ///< newer than the file
    bool m_isLocked = false;               ///< it was, when last looked at
};

}  // namespace skylob
