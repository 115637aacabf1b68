#pragma once

#include "base/MessageBoxes.h"

namespace skylob {

/// Message boxes in the desktop's own look, modal over the window in use.
class QtMessageBoxes final : public MessageBoxes {
  public:
    BoxAnswer show(const MessageBox& box) override;
    std::optional<std::string> ask(const InputBox& box) override;
};

}  // namespace skylob
