#include "platform/qt/QtWindowStore.h"

namespace skylob {

QtWindowStore::QtWindowStore() : m_file{QStringLiteral("Windows"), QStringLiteral("Windows")} {
}

std::string QtWindowStore::recall(std::string_view key, std::string_view fallback) const {
    return m_file.get(key, fallback);
}

void QtWindowStore::keep(std::string_view key, std::string_view value) {
    m_file.save(key, value);
}

}  // namespace skylob
