#pragma once

#include <string>
#include <string_view>

/// The characters of names on file: one byte each, of the Windows code page 1252.
namespace skylob {

/// "?" stands for every character that the code page lacks, and for every byte of `utf8` that is
/// no part of one.
std::string toWindows1252(std::string_view utf8);

/// In UTF-8. Control characters, and bytes that stand for nothing, show as blanks.
std::string fromWindows1252(std::string_view bytes);

}  // namespace skylob
