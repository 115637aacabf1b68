#include "platform/qt/QtSettingsStore.h"

#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <cstdio>
#include "base/basSkylob.h"
#include "base/qt/QtText.h"

namespace skylob {

namespace {

constexpr int kPatience = 500;  // milliseconds

QString path(std::string_view key) {
    return QStringLiteral("Defaults/") + toQt(key);
}

/// There is something by that name, but no file: to open it could take for ever.
bool isNoFile(const QString& name) {
    const QFileInfo place{name};
    return place.exists() && !place.isFile();
}

void complain(const QString& name, const char* what) {
    std::fprintf(stderr, "skylob: the settings '%s' %s\n", qPrintable(name), what);
}

}  // namespace

QtSettingsStore::QtSettingsStore() {
    const QString title = toQt(kProgramTitle);
    const QString name = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                         QStringLiteral("/%1/%1.ini").arg(title);
    if (isNoFile(name))
        complain(name, "are no file and not used");
    else
        m_settings.emplace(QSettings::IniFormat, QSettings::UserScope, title, title);
}

std::string QtSettingsStore::get(std::string_view key, std::string_view fallback) const {
    if (const auto found = m_unsaved.find(path(key)); found != m_unsaved.end())
        return found->second.toStdString();
    if (!m_settings) return std::string{fallback};
    return m_settings->value(path(key), toQt(fallback)).toString().toStdString();
}

void QtSettingsStore::save(std::string_view key, std::string_view value) {
    m_unsaved[path(key)] = toQt(value);
    if (!m_settings || !mayWrite()) return;
    for (const auto& [where, text] : m_unsaved) m_settings->setValue(where, text);
    m_unsaved.clear();
    m_settings->sync();
}

/// The settings themselves would wait for their lock as long as it takes.
bool QtSettingsStore::mayWrite() {
    const QString name = m_settings->fileName();
    const QString lockName = name + QStringLiteral(".lock");
    QLockFile lock{lockName};
    const bool wasLocked = m_isLocked;
    m_isLocked = isNoFile(lockName) || (!lock.tryLock(wasLocked ? 0 : kPatience) &&
                                        lock.error() == QLockFile::LockFailedError);
    if (m_isLocked && !wasLocked) complain(name, "are locked by another program");
    return !m_isLocked && !isNoFile(name);
}

}  // namespace skylob
