#include "battle/BattleQuestions.h"

#include <utility>

namespace skylob {

namespace {

bool asks(MessageBoxes& boxes, std::string title, std::string question) {
    return boxes.show({std::move(title), std::move(question), BoxIcon::Question,
                       BoxButtons::YesNo}) == BoxAnswer::Yes;
}

}  // namespace

void tellOfNoMen(const std::string& playerName, MessageBoxes& boxes) {
    boxes.show({playerName + " loses this round!",
                playerName + "-\r\n\r\nYou can't shoot because you have no men left!",
                BoxIcon::Critical, BoxButtons::Ok});
}

bool confirmsLeaving(const BattleState& state, const basSkylob& shared, MessageBoxes& boxes) {
    // Quirk "unasked leaving": the first and the last round are left without asking.
    if (state.RoundNumber <= 1 || state.RoundNumber >= shared.NumRounds) return true;
    return asks(boxes, std::string{kProgramTitle}, "Are you sure you want to quit this set?");
}

void offerToKeepGameSpeed(const BattleState& state, const basSkylob& shared, MessageBoxes& boxes,
                          SettingsStore& store) {
    if (shared.GameSpeed == state.gameSpeedAtStart) return;
    if (asks(boxes, "Game Speed Setting",
             "I notice you've changed the game speed setting.\r\n\r\n"
             "Would you like to keep this speed setting from now on?"))
        store.save("GameSpeed", std::to_string(shared.GameSpeed));
}

}  // namespace skylob
