#include "platform/qt/QtLinkOpener.h"

#include <QDesktopServices>
#include <QUrl>

namespace skylob {

bool QtLinkOpener::open(const std::string& target) {
    return QDesktopServices::openUrl(QUrl{QString::fromStdString(target)});
}

}  // namespace skylob
