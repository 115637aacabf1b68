#include "platform/RunPath.h"

#include <dlfcn.h>
#include <unistd.h>

#include <span>
#include <vector>

namespace skylob {

std::string foundOnRunPath(const std::string& name) {
    void* const program = dlopen(nullptr, RTLD_LAZY);
    Dl_serinfo size{};
    dlinfo(program, RTLD_DI_SERINFOSIZE, &size);
    // One of them has the folders behind it, in the room that the others take.
    std::vector<Dl_serinfo> found(size.dls_size / sizeof size + 1);
    dlinfo(program, RTLD_DI_SERINFOSIZE, found.data());
    dlinfo(program, RTLD_DI_SERINFO, found.data());
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access)
    const Dl_serpath* const folders = found.front().dls_serpath;
    for (const Dl_serpath& folder : std::span{folders, found.front().dls_cnt}) {
        const std::string path = std::string{folder.dls_name} + "/" + name;
        if (access(path.c_str(), X_OK) == 0) return path;
    }
    return name;
}

}  // namespace skylob
