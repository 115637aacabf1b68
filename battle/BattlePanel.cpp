#include "battle/BattlePanel.h"

#include <cstdlib>

#include "battle/FieldDescription.h"

namespace skylob {

namespace {

std::string windCaption(int wind) {
    if (wind == 0) return "Wind";
    const std::string strength = std::to_string(std::abs(wind));
    // Quirk "uneven blanks": two here, three after "Angle:".
    return "Wind  " + (wind < 0 ? "<--" + strength : strength + "-->");
}

bool isUsable(Deed deed, const BattleState& state) {
    // What has to wait for an effect's end is usable meanwhile.
    return verdictOn(deed, state.phase, false) == Verdict::Now;
}

SidePanel sidePanel(int side, const BattleState& state) {
    const auto& [speed, angle] = state.aim[side];
    SidePanel panel;
    panel.scrollSpeed = speed;
    panel.scrollAngle = angle;
    panel.labelSpeed = "Speed: " + std::to_string(speed);
    // Quirk "uneven blanks": three of them.
    panel.labelAngle = "Angle:   " + std::to_string(angle);
    if (state.turnNotice.side != 0) {
        panel.menLeft = state.turnNotice.menLeft[side];
        panel.labelMenLeft = "Men Left: " + std::to_string(panel.menLeft);
    }
    if (const auto& last = state.lastShot[side]) {
        panel.labelLastSpeed = "was " + std::to_string(last->speed);
        panel.labelLastAngle = "was " + std::to_string(last->angle);
        panel.labelLastLanding = landingInShort(*last);
    }
    panel.enabled = side == state.turnNotice.side && isUsable(Deed::Aim, state);
    return panel;
}

void showScore(BattlePanel& panel, const basSkylob& shared) {
    const PerSide<std::string>& name = shared.PlayerName;
    const PerSide<std::string> won{std::to_string(shared.RoundsWon[1]),
                                   std::to_string(shared.RoundsWon[2])};
    panel.labelScore = won[1] + " : " + won[2];
    panel.score = "Rounds won: " + name[1] + " " + won[1] + ", " + name[2] + " " + won[2];
}

std::string reportLine(const BattleState& state, const basSkylob& shared) {
    return state.report ? reportText(*state.report, shared.PlayerName) : std::string{};
}

}  // namespace

int gameSpeedOnBar(const BattleState& state, const basSkylob& shared) {
    return state.barShowsGameSpeed ? shared.GameSpeed : kGameSpeedRange.minimum;
}

std::string sideCaption(int side, const basSkylob& shared) {
    const std::string& name = shared.PlayerName[side];
    if (!shared.isComputer(side)) return name;
    switch (shared.SkillLevel) {
        case kGoodSkill:
            return name + " (Skill level: Good)";
        case kFairSkill:
            return name + " (Skill level: Fair)";
        case kPoorSkill:
            return name + " (Skill level: Poor)";
        default:
            return name;
    }
}

BattlePanel panelOf(const BattleState& state, const basSkylob& shared) {
    BattlePanel panel;
    for (const int side : kSides) panel.side[side] = sidePanel(side, state);
    panel.turn = state.turnNotice.side;
    panel.scrollGameSpeed = gameSpeedOnBar(state, shared);
    panel.labelGameSpeed = "Game Speed: " + std::to_string(panel.scrollGameSpeed);
    if (state.RoundNumber != 0) {
        panel.labelRoundNumber = "Round " + std::to_string(state.RoundNumber) + " of " +
                                 std::to_string(shared.NumRounds);
        showScore(panel, shared);
    }
    panel.labelReport = reportLine(state, shared);
    panel.chkSound = state.SoundOn;
    panel.chkTrajectory = state.ShowTrajectory;
    panel.chkMeteors = state.chkMeteors;
    panel.chkLightning = state.chkLightning;
    panel.chkWind = state.chkWind;
    panel.chkWindCaption = windCaption(state.Wind);
    panel.windInWords = windInWords(state.Wind);
    panel.commandsEnabled = isUsable(Deed::ChangeOption, state);
    panel.isWatched = state.phase == Phase::Watching;
    panel.timerMeteors = state.timerMeteors;
    panel.timerLightning = state.timerLightning;
    return panel;
}

}  // namespace skylob
