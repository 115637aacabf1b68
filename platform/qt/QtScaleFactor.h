#pragma once

#include <QByteArray>

namespace skylob {

/// While it lives, a toolkit that starts shows everything larger, on top of what the desktop and
/// the user's own QT_SCALE_FACTOR make of it. Afterwards the environment is as before: the programs
/// that open links have a size of their own.
class QtScaleFactor {
  public:
    explicit QtScaleFactor(int percent);
    ~QtScaleFactor();

    QtScaleFactor(const QtScaleFactor&) = delete;
    QtScaleFactor& operator=(const QtScaleFactor&) = delete;

  private:
    const QByteArray m_usersOwn;  ///< null when there is none
};

}  // namespace skylob
