#pragma once

#include <unistd.h>

#include <QTemporaryFile>

namespace skylob::test {

/// What is written to the standard error while it lives.
class CapturedErrors {
  public:
    CapturedErrors() : m_saved{dup(STDERR_FILENO)} {
        if (m_file.open()) dup2(m_file.handle(), STDERR_FILENO);
    }
    ~CapturedErrors() {
        dup2(m_saved, STDERR_FILENO);
        close(m_saved);
    }
    CapturedErrors(const CapturedErrors&) = delete;

    /// All of it so far.
    QByteArray text() const {
        QFile file{m_file.fileName()};
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray{};
    }

  private:
    QTemporaryFile m_file;
    int m_saved;
};

}  // namespace skylob::test
