#pragma once

#include <optional>
#include <string>

#include "base/RandomInt.h"
#include "base/StringTable.h"
#include "base/basSkylob.h"

namespace skylob {

/// The computer's remark on the round or, when SetOver is set, on the set that `shared` tells of:
/// any text of the block that fits, by one draw of chance. Nothing for a round between two people
/// whose winner has not fired.
std::optional<std::string> drawRemark(const basSkylob& shared, const StringTable& strings,
                                      RandomSource& random);

}  // namespace skylob
