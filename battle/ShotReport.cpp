#include "battle/ShotReport.h"

#include <cstdlib>

namespace skylob {

namespace {

std::string counted(int number, const std::string& one, const std::string& more) {
    return std::to_string(number) + " " + (number == 1 ? one : more);
}

std::string sideOfField(const ShotReport& report) {
    return report.landedLeft ? "left" : "right";
}

std::string distance(const ShotReport& report, const std::string& target) {
    return counted(std::abs(report.beyond), "column ", "columns ") +
           (report.beyond < 0 ? "short of " : "past ") + target;
}

std::string nearMiss(const ShotReport& report, const std::string& target) {
    const std::string where = "near miss " + distance(report, target);
    if (report.end != RoundEnd::None) return where + ", who had no men left";
    return where + ", " + counted(report.killed, "man", "men") + " killed";
}

std::string landingText(const ShotReport& report, const PerSide<std::string>& names) {
    const std::string& target = names[opponentOf(report.side)];
    switch (report.landing) {
        case Landing::OutOfBounds:
            return "out of bounds on the " + sideOfField(report);
        case Landing::SelfHit:
            return "hit " + names[report.side] + "'s own piece";
        case Landing::DirectHit:
            return "direct hit on " + target;
        case Landing::NearMiss:
            return nearMiss(report, target);
        case Landing::Miss:
            break;
    }
    return distance(report, target);
}

bool isLost(RoundEnd end) {
    return end == RoundEnd::SelfHit || end == RoundEnd::NoMen;
}

std::string outcome(const ShotReport& report, const PerSide<std::string>& names) {
    const std::string& name = names[report.side];
    if (report.end != RoundEnd::None)
        return (isLost(report.end) ? names[opponentOf(report.side)] : name) + " wins the round.";
    return counted(report.deserted, "man", "men") + " deserted " + name + ".";
}

}  // namespace

std::string reportText(const ShotReport& report, const PerSide<std::string>& names) {
    std::string text = names[report.side];
    if (report.wasFired())
        text += ", " + std::to_string(report.speed) + " at " + std::to_string(report.angle) +
                "°: " + landingText(report, names);
    else
        text += " has no men left to shoot";
    return text + ". " + outcome(report, names);
}

std::string landingInShort(const ShotReport& report) {
    switch (report.landing) {
        case Landing::OutOfBounds:
            return "out " + sideOfField(report);
        case Landing::SelfHit:
            return "own piece";
        case Landing::DirectHit:
            return "hit";
        case Landing::NearMiss:
        case Landing::Miss:
            break;
    }
    return std::to_string(std::abs(report.beyond)) + (report.beyond < 0 ? " short" : " past");
}

}  // namespace skylob
