#pragma once

#include <QString>
#include <string_view>

namespace skylob {

/// A text of the rules, UTF-8, as the toolkit has it.
inline QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace skylob
