#include "platform/SpareMemory.h"

#include <malloc.h>

namespace skylob {

void keepLittleSpareMemory() {
    // Stating one limit, here of what stays behind freed blocks, keeps the other, from which on a
    // block is the system's own, from growing with what has been freed.
    constexpr int kBytes = 1 << 20;
    mallopt(M_TRIM_THRESHOLD, kBytes);
}

}  // namespace skylob
