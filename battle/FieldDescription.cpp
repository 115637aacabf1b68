#include "battle/FieldDescription.h"

#include <algorithm>
#include <cstdlib>

namespace skylob {

namespace {

using std::to_string;

std::string numberAnd(int number, const char* one, const char* more) {
    return to_string(number) + (number == 1 ? one : more);
}

bool isYou(int side, const basSkylob& shared) {
    return shared.isComputer(opponentOf(side));
}

enum class At { SentenceStart, Middle };

/// "Your" or "Ann's".
std::string whose(int side, const basSkylob& shared, At at) {
    if (isYou(side, shared)) return at == At::SentenceStart ? "Your" : "your";
    return shared.PlayerName[side] + "'s";
}

std::string strengthAndSide(int wind) {
    return to_string(std::abs(wind)) + (wind < 0 ? " to the left" : " to the right");
}

std::string place(int column, int height) {
    return " at column " + to_string(column) + ", height " + to_string(height) + "; ";
}

std::string piece(int side, const BattleState& state, const basSkylob& shared) {
    return whose(side, shared, At::Middle) + " piece with " +
           numberAnd(state.turnNotice.menLeft[side], " man", " men") +
           place(state.field.PieceX[side], state.field.PieceY[side]);
}

/// What a shell has to clear.
std::string mountain(const Battlefield& field) {
    const auto first = field.TerrainHeight.begin();
    const auto top = std::max_element(first + field.PieceX[1], first + field.PieceX[2] + 1);
    return "the mountain between reaches " + to_string(*top) + " at column " +
           to_string(top - first) + ".";
}

std::string turnSentence(const BattleState& state, const basSkylob& shared) {
    const int side = state.turnNotice.side;
    return whose(side, shared, At::SentenceStart) + " turn, " +
           (state.Wind == 0 ? "no wind" : "wind " + strengthAndSide(state.Wind)) + ": " +
           piece(1, state, shared) + piece(2, state, shared) + mountain(state.field);
}

std::string landing(const ShotReport& shot) {
    if (shot.landing == Landing::OutOfBounds)
        return shot.landedLeft ? "left the field on the left" : "left the field on the right";
    std::string text = "fell " + numberAnd(std::abs(shot.beyond), " column ", " columns ") +
                       (shot.beyond < 0 ? "short" : "past");
    if (shot.landing == Landing::NearMiss)
        text += " and killed " + numberAnd(shot.killed, " man", " men");
    return text;
}

/// Hits are not among them: these end the round.
std::string shotSentence(const BattleState& state, const basSkylob& shared) {
    std::string text;
    for (const int side : kSides) {
        const auto& shot = state.lastShot[side];
        if (!shot) continue;
        const bool isFirst = text.empty();
        text += isFirst ? " " : "; ";
        text += whose(side, shared, isFirst ? At::SentenceStart : At::Middle);
        text += " last shell with speed " + to_string(shot->speed) + " and angle " +
                to_string(shot->angle) + " " + landing(*shot);
    }
    return text.empty() ? text : text + ".";
}

std::string roundOver(const basSkylob& shared) {
    const int winner = shared.Winner;
    return "The round is over: " +
           (isYou(winner, shared) ? "you have" : shared.PlayerName[winner] + " has") + " won it.";
}

}  // namespace

std::string windInWords(int wind) {
    return wind == 0 ? "Wind" : "Wind " + strengthAndSide(wind);
}

std::string fieldDescription(const BattleState& state, const basSkylob& shared) {
    if (state.turnNotice.side == 0) return {};
    if (shared.Winner != 0) return roundOver(shared);
    return turnSentence(state, shared) + shotSentence(state, shared);
}

}  // namespace skylob
