#include "app/QtSettingsStore.h"

#include "app/basSkylob.h"

namespace skylob {

namespace {

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString path(std::string_view key) {
    return QStringLiteral("Defaults/") + toQString(key);
}

}  // namespace

QtSettingsStore::QtSettingsStore()
    : m_settings{QSettings::IniFormat, QSettings::UserScope, toQString(kProgramTitle),
                 toQString(kProgramTitle)} {
}

std::string QtSettingsStore::get(std::string_view key, std::string_view fallback) const {
    return m_settings.value(path(key), toQString(fallback)).toString().toStdString();
}

void QtSettingsStore::save(std::string_view key, std::string_view value) {
    m_settings.setValue(path(key), toQString(value));
    m_settings.sync();
}

}  // namespace skylob
