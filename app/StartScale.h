#pragma once

#include "app/CommandLine.h"
#include "base/Scale.h"

namespace skylob {

/// The scale of one run, in percent: what the command line asks for, or what was kept.
inline int startScale(const CommandLine& commandLine, const WindowStore& windows) {
    return commandLine.scale ? *commandLine.scale : recallScale(windows);
}

}  // namespace skylob
