#pragma once

#include "base/MessageBoxes.h"

namespace skylob {

class QtShapes;

/// Message boxes in the program's look, modal over the window in use.
class QtMessageBoxes final : public MessageBoxes {
  public:
    /// `shapes` must outlive the object.
    explicit QtMessageBoxes(const QtShapes& shapes) : m_shapes{shapes} {}

    BoxAnswer show(const MessageBox& box) override;
    std::optional<std::string> ask(const InputBox& box) override;

  private:
    const QtShapes& m_shapes;
};

}  // namespace skylob
