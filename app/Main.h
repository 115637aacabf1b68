#pragma once

#include "base/FileSystem.h"
#include "base/MessageBoxes.h"
#include "base/basSkylob.h"

namespace skylob {

/// Whether the user has this program open already.
enum class Copies { ThisOne, AnotherOne };

/// The first steps of the program, before any screen. A second copy is refused with a message. A
/// player file of an earlier version gets its present name, unless there is one of that name.
///
/// False when the program is to end at once. Throws FileError when the file cannot be renamed.
bool Main(const basSkylob& shared, Copies copies, FileSystem& files, MessageBoxes& boxes);

}  // namespace skylob
