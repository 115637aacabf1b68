#include "platform/qt/QtPictureTransport.h"

#include <QByteArray>

namespace skylob {

void sendPicturesInline() {
    qputenv("QT_XCB_NO_MITSHM", QByteArrayLiteral("1"));
}

}  // namespace skylob
