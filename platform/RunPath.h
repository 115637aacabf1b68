#pragma once

#include <string>

namespace skylob {

/// The path of a file in one of the folders in which this program's libraries are looked for, the
/// one of the first of them; the name alone where none of them has it. The linker has written into
/// the program which these are, and the installation what they are then.
std::string foundOnRunPath(const std::string& name);

}  // namespace skylob
