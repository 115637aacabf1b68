#pragma once

namespace skylob {

/// Has what large pictures took go back to the system when they go. The C library would keep room
/// for as much as the largest of them. To be called before the first of them is made.
void keepLittleSpareMemory();

}  // namespace skylob
