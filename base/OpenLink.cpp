#include "base/OpenLink.h"

#include <string>

#include "base/Release.h"

namespace skylob {

void OpenLink(LinkKind kind, std::string_view address, LinkOpener& opener, MessageBoxes& boxes) {
    const bool mail = kind == LinkKind::Mail;
    std::string target = mail ? "mailto:" : "http://";
    target += !address.empty() ? address : mail ? kContactAddress : kWebPage;
    if (opener.open(target)) return;
    boxes.show({"Error", "Could not establish an internet connection!", BoxIcon::Critical,
                BoxButtons::Ok});
}

}  // namespace skylob
