#include "platform/qt/QtIniFile.h"

#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <cstdio>
#include <utility>

#include "base/basSkylob.h"
#include "base/qt/QtText.h"

namespace skylob {

namespace {

constexpr int kPatience = 500;  // milliseconds

/// There is something by that name, but no file: to open it could take for ever.
bool isNoFile(const QString& name) {
    const QFileInfo place{name};
    return place.exists() && !place.isFile();
}

void complain(const QString& name, const char* what) {
    std::fprintf(stderr, "skylob: the settings '%s' %s\n", qPrintable(name), what);
}

}  // namespace

QtIniFile::QtIniFile(const QString& name, QString section) : m_section{std::move(section)} {
    const QString folder = toQt(kProgramTitle);
    const QString file = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                         QStringLiteral("/%1/%2.ini").arg(folder, name);
    if (isNoFile(file))
        complain(file, "are no file and not used");
    else
        m_file.emplace(QSettings::IniFormat, QSettings::UserScope, folder, name);
}

QString QtIniFile::path(std::string_view key) const {
    return m_section + QLatin1Char{'/'} + toQt(key);
}

std::string QtIniFile::get(std::string_view key, std::string_view fallback) const {
    if (const auto found = m_unsaved.find(path(key)); found != m_unsaved.end())
        return found->second.toStdString();
    if (!m_file) return std::string{fallback};
    return m_file->value(path(key), toQt(fallback)).toString().toStdString();
}

void QtIniFile::save(std::string_view key, std::string_view value) {
    m_unsaved[path(key)] = toQt(value);
    if (!m_file || !mayWrite()) return;
    for (const auto& [where, text] : m_unsaved) m_file->setValue(where, text);
    m_unsaved.clear();
    m_file->sync();
}

/// The settings themselves would wait for their lock as long as it takes.
bool QtIniFile::mayWrite() {
    const QString name = m_file->fileName();
    const QString lockName = name + QStringLiteral(".lock");
    QLockFile lock{lockName};
    const bool wasLocked = m_isLocked;
    m_isLocked = isNoFile(lockName) || (!lock.tryLock(wasLocked ? 0 : kPatience) &&
                                        lock.error() == QLockFile::LockFailedError);
    if (m_isLocked && !wasLocked) complain(name, "are locked by another program");
    return !m_isLocked && !isNoFile(name);
}

}  // namespace skylob
