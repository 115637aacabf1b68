#include "players/Pairing.h"

#include "base/basSkylob.h"

namespace skylob {

Pairing::Pairing(const basSkylob& shared)
    : m_name{shared.PlayerName}, m_chkComputer{shared.isComputer(2)} {
}

std::string_view Pairing::frameCaption(int side) const {
    if (side == 2) return " Player 2 ";
    return m_name[1].empty() ? " Player 1 " : " Double-click to UNselect ";
}

void Pairing::choose(const std::string& name) {
    if (name == kComputerName) {
        chkComputer_Click(true);
        return;
    }
    if (m_name[1].empty()) m_name[1] = name;
    if (m_name[2].empty() && name != m_name[1]) m_name[2] = name;
}

void Pairing::chkComputer_Click(bool ticked) {
    m_chkComputer = ticked;
    m_name[2] = ticked ? kComputerName : "";
}

void Pairing::rename(std::string_view from, const std::string& to) {
    if (from.empty()) return;
    // Whoever is now called like the computer has gone: that one plays side 2, and by the box.
    const std::string name = to == kComputerName ? "" : to;
    if (m_name[1] == from) m_name[1] = name;
    if (m_name[2] == from && !m_chkComputer) m_name[2] = name;
}

}  // namespace skylob
