#pragma once

namespace skylob {

/// What a summary sums up; its heading's last word.
enum class SummaryKind { Round, Set };

}  // namespace skylob
