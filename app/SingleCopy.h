#pragma once

#include "app/Main.h"

namespace skylob {

/// The mark that a running copy of the program leaves for others of the same user: a lock in the
/// user's runtime folder. It lasts as long as the object, and not longer than the process, however
/// that ends.
class SingleCopy {
  public:
    SingleCopy();
    ~SingleCopy();

    SingleCopy(const SingleCopy&) = delete;
    SingleCopy& operator=(const SingleCopy&) = delete;

    /// Where no mark can be left, this copy counts as the only one: better two than none.
    Copies copies() const { return m_copies; }

    /// Lets another copy start from now on.
    void release();

  private:
    int m_lock = -1;
    Copies m_copies = Copies::ThisOne;
};

}  // namespace skylob
