#pragma once

#include "base/LinkOpener.h"

namespace skylob {

/// The desktop's own opener.
class QtLinkOpener final : public LinkOpener {
  public:
    bool open(const std::string& target) override;
};

}  // namespace skylob
