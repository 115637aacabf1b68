#pragma once

#include <QString>
#include <string>

class QWidget;

namespace skylob {

/// Prints a text, UTF-8, under a header of one line on each page, straight to the default printer.
/// Where there is none, the user is asked for a file, and the pages go into a PDF. Returns when the
/// printing system has taken over, or the user has thought better of it. Meanwhile `window`, the
/// screen that prints, ignores input and the pointer shows that it waits.
///
/// False when the file could not be written; what a printer does is not reported.
bool printManual(QWidget& window, const std::string& header, const std::string& text);

/// Prints into a PDF file, replacing what is there. False when it could not be written.
bool printToPdf(const QString& file, const std::string& header, const std::string& text);

}  // namespace skylob
