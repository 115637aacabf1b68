#include "base/NullPorts.h"

namespace skylob {

std::optional<std::string> AgreeingBoxes::ask(const InputBox& box) {
    return box.entry;
}

BoxAnswer AgreeingBoxes::show(const MessageBox& box) {
    return box.buttons == BoxButtons::YesNo ? BoxAnswer::Yes : BoxAnswer::Ok;
}

std::string MemorySettings::get(std::string_view key, std::string_view fallback) const {
    const auto found = m_values.find(key);
    return found == m_values.end() ? std::string{fallback} : found->second;
}

void MemorySettings::save(std::string_view key, std::string_view value) {
    m_values.insert_or_assign(std::string{key}, std::string{value});
}

std::string MemoryWindows::recall(std::string_view key, std::string_view fallback) const {
    return m_values.get(key, fallback);
}

void MemoryWindows::keep(std::string_view key, std::string_view value) {
    m_values.save(key, value);
}

}  // namespace skylob
