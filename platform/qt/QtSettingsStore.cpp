#include "platform/qt/QtSettingsStore.h"

#include "base/basSkylob.h"
#include "base/qt/QtText.h"

namespace skylob {

QtSettingsStore::QtSettingsStore() : m_file{toQt(kProgramTitle), QStringLiteral("Defaults")} {
}

std::string QtSettingsStore::get(std::string_view key, std::string_view fallback) const {
    return m_file.get(key, fallback);
}

void QtSettingsStore::save(std::string_view key, std::string_view value) {
    m_file.save(key, value);
}

}  // namespace skylob
