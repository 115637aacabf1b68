#pragma once

#include <string>
#include <string_view>

#include "base/PerSide.h"

namespace skylob {

struct basSkylob;

/// Who is going to play whom: the two names on the player list screen, and the box beside them.
/// Player 1 comes and goes by double-clicks; player 2, once there, goes only with the box.
class Pairing {
  public:
    /// Nobody, or the two who play the set that `shared` tells of.
    Pairing() = default;
    explicit Pairing(const basSkylob& shared);

    /// Empty as long as nobody has been chosen.
    const std::string& labelPlayerName(int side) const { return m_name[side]; }
    bool chkComputer() const { return m_chkComputer; }
    std::string_view frameCaption(int side) const;
    bool isComplete() const { return !m_name[1].empty() && !m_name[2].empty(); }

    /// A double-click on a name of the list.
    void choose(const std::string& name);

    /// A double-click on a chosen name. Quirk "only player 1 unselects": player 2 goes with the
    /// box, or into battle at once.
    void labelPlayerName_DblClick() { m_name[1].clear(); }

    /// The box plays the computer, or nobody.
    void chkComputer_Click(bool ticked);

    /// A player of the list has got another name, or is gone; with the computer's name, that is the
    /// same. The computer that the box has brought in is no player of the list.
    void rename(std::string_view from, const std::string& to);
    void remove(std::string_view name) { rename(name, {}); }

  private:
    PerSide<std::string> m_name;
    bool m_chkComputer = false;
};

}  // namespace skylob
