#pragma once

#include <string_view>

#include "base/LinkOpener.h"
#include "base/MessageBoxes.h"

namespace skylob {

enum class LinkKind { Mail = 1, Web = 2 };

/// Opens the user's mail program or browser. `address` comes without "mailto:" or "http://",
/// which are always put in front; an empty one means the program's own mail address or web page.
/// Says so in a box when the desktop cannot be asked.
void OpenLink(LinkKind kind, std::string_view address, LinkOpener& opener, MessageBoxes& boxes);

}  // namespace skylob
