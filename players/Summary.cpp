#include "players/Summary.h"

#include <chrono>
#include <cstdio>

#include "base/RoundEnd.h"
#include "players/Commentary.h"
#include "players/Ranking.h"
#include "players/SetResult.h"

namespace skylob {

Summary::Summary(basSkylob& shared, SummaryKind kind, const SummaryPorts& ports)
    : m_shared{shared}, m_kind{kind}, m_ports{ports} {
}

void Summary::Form_Activate() {
    if (m_shared.SetOver) {
        m_ports.sounds.PlaySound("set");
        m_shared.Winner = setWinner(m_shared);
    } else if (const auto sound = roundSound(m_shared, secondsOf(m_ports.clock.now()))) {
        m_ports.sounds.PlaySound(*sound);
    }
    if (const auto remark = drawRemark(m_shared, m_ports.strings, m_ports.random))
        m_labelComputerSays = *remark;
}

std::string Summary::heading() const {
    std::string text = m_shared.PlayerName[m_shared.Winner];
    text += " wins this ";
    text += m_kind == SummaryKind::Round ? "Round!" : "Set!";
    return text;
}

std::string Summary::reason() const {
    return m_kind == SummaryKind::Round ? whyRoundIsOver(m_shared) : whoWonTheSet(m_shared);
}

std::string Summary::labelDateTime() const {
    return dateTimeText(m_ports.clock.now());
}

void Summary::cmdOkay_Click() {
    if (!m_shared.SetOver) return;
    RecordSetResults(m_ports.file, m_shared);
    if (m_ports.file.PlayerCount < 2) return;
    m_ports.boxes.show(
        {"Players Update", m_shared.PlayerName[1] + " & " + m_shared.PlayerName[2] +
                               "--\r\nYour overall rating and standing among other players\r\n"
                               "have been updated and recorded in the Player List."});
}

std::string whyRoundIsOver(const basSkylob& shared) {
    if (shared.Winner == 0) return {};
    const std::string& winner = shared.PlayerName[shared.Winner];
    const std::string& loser = shared.PlayerName[opponentOf(shared.Winner)];
    switch (roundEndOf(shared)) {
        case RoundEnd::DirectHit:
            return winner + "'s shell hit " + loser + "'s piece.";
        case RoundEnd::SelfHit:
            return loser + "'s shell hit " + loser + "'s own piece.";
        case RoundEnd::NearMiss:
            return winner + "'s shell came down beside " + loser + ", who had no men left.";
        case RoundEnd::NoMen:
            return loser + " had no men left to shoot.";
        case RoundEnd::None:
            break;
    }
    return {};
}

std::string whoWonTheSet(const basSkylob& shared) {
    const int winner = setWinner(shared), loser = opponentOf(winner);
    const int score = SetScore(shared, winner), less = SetScore(shared, loser);
    const std::string by = std::to_string(score) + " to " + std::to_string(less);
    if (score == less) return by + ": a tie goes to side 2, " + shared.PlayerName[winner] + ".";
    return shared.PlayerName[winner] + " beats " + shared.PlayerName[loser] + " by " + by + ".";
}

std::string dateTimeText(DateTime time) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date{day};
    const std::chrono::hh_mm_ss clock{std::chrono::floor<std::chrono::minutes>(time - day)};
    const int hour = static_cast<int>(clock.hours().count());
    char text[64];
    std::snprintf(text, sizeof text, "%02u/%02u/%02d - %d:%02d%s",
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(date.year()) % 100, hour % 12 == 0 ? 12 : hour % 12,
                  static_cast<int>(clock.minutes().count()), hour < 12 ? "am" : "pm");
    return text;
}

std::optional<std::string_view> roundSound(const basSkylob& shared, int second) {
    if (!shared.isComputer(2) || shared.SelfHit) return std::nullopt;
    if (shared.Winner != 2)
        return second < 5 ? std::optional<std::string_view>{"contempt"} : std::nullopt;
    if (second < 10) return "gameover";
    if (second < 20) return "woody";
    if (second < 30) return "beep";
    return std::nullopt;
}

}  // namespace skylob
