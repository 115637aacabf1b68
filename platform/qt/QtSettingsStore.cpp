#include "platform/qt/QtSettingsStore.h"

#include "base/basSkylob.h"
#include "base/qt/QtText.h"

namespace skylob {

namespace {

QString path(std::string_view key) {
    return QStringLiteral("Defaults/") + toQt(key);
}

}  // namespace

QtSettingsStore::QtSettingsStore()
    : m_settings{QSettings::IniFormat, QSettings::UserScope, toQt(kProgramTitle),
                 toQt(kProgramTitle)} {
}

std::string QtSettingsStore::get(std::string_view key, std::string_view fallback) const {
    return m_settings.value(path(key), toQt(fallback)).toString().toStdString();
}

void QtSettingsStore::save(std::string_view key, std::string_view value) {
    m_settings.setValue(path(key), toQt(value));
    m_settings.sync();
}

}  // namespace skylob
