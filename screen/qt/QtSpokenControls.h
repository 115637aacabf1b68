#pragma once

namespace skylob {

/// Has screen readers find labels, check boxes, scroll bars, frames and plain widgets told as
/// QtSpokenWidget says, in place of the toolkit's way. To be called once the application is there
/// and before its first screen; any number of calls does no harm.
void installSpokenControls();

}  // namespace skylob
