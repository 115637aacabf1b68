#pragma once

#include "app/MessageBoxes.h"

namespace skylob {

/// Message boxes in the desktop's own look, modal over the window in use.
class QtMessageBoxes final : public MessageBoxes {
  public:
    BoxAnswer show(const MessageBox& box) override;
};

}  // namespace skylob
