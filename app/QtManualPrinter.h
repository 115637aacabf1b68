#pragma once

#include <QString>
#include <string>

#include "app/ManualPrinter.h"

class QWidget;

namespace skylob {

/// Prints straight to the default printer. Where there is none, the user is asked for a file, and
/// the pages go into a PDF. Meanwhile the window ignores input and the pointer shows that it waits.
class QtManualPrinter final : public ManualPrinter {
  public:
    /// `window` is the screen that prints; it must outlive the printer.
    explicit QtManualPrinter(QWidget& window) : m_window{window} {}

    void print(const std::string& header, const std::string& text) override;

  private:
    QString askForFile() const;

    QWidget& m_window;
};

/// Prints into a PDF file, replacing what is there. False when it could not be written.
bool printToPdf(const QString& file, const std::string& header, const std::string& text);

}  // namespace skylob
