#pragma once

#include <string>

namespace skylob {

/// Prints texts of the manual.
class ManualPrinter {
  public:
    virtual ~ManualPrinter() = default;

    /// Prints a text, UTF-8, under a header of one line on each page. Returns when the printing
    /// system has taken over or the user has thought better of it; failures are not reported.
    virtual void print(const std::string& header, const std::string& text) = 0;
};

}  // namespace skylob
