#pragma once

#include <string>

namespace skylob {

/// Hands addresses to the desktop, which knows the user's browser and mail program.
class LinkOpener {
  public:
    virtual ~LinkOpener() = default;

    /// Hands over a whole address, such as "http://example.org". False when there was nobody to
    /// take it; what becomes of it is not known.
    virtual bool open(const std::string& target) = 0;
};

}  // namespace skylob
