#include "platform/qt/QtScaleFactor.h"

#include <QtGlobal>

namespace skylob {

namespace {

constexpr const char* kVariable = "QT_SCALE_FACTOR";

/// As the toolkit reads it: what is no factor does nothing.
double factorOf(const QByteArray& text) {
    bool isNumber = false;
    const double factor = text.toDouble(&isNumber);
    return isNumber && factor > 0 ? factor : 1;
}

}  // namespace

QtScaleFactor::QtScaleFactor(int percent) : m_usersOwn{qgetenv(kVariable)} {
    if (percent != 100)
        qputenv(kVariable, QByteArray::number(factorOf(m_usersOwn) * percent / 100));
}

QtScaleFactor::~QtScaleFactor() {
    if (m_usersOwn.isNull())
        qunsetenv(kVariable);
    else
        qputenv(kVariable, m_usersOwn);
}

}  // namespace skylob
