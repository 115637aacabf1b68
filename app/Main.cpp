#include "app/Main.h"

namespace skylob {

bool Main(const basSkylob& shared, Copies copies, FileSystem& files, MessageBoxes& boxes) {
    if (copies == Copies::AnotherOne) {
        std::string refusal{kProgramTitle};
        refusal += " is already loaded\r\nand running on your computer!";
        boxes.show({"Terminating...", refusal, BoxIcon::Critical});
        return false;
    }
    // Quirk "old file left alone": beside a present one it stays as it is.
    if (files.hasFile(shared.OldDataFile) && !files.hasFile(shared.PlayerFileName))
        files.replace(shared.OldDataFile, shared.PlayerFileName);
    return true;
}

}  // namespace skylob
