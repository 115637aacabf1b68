#pragma once

namespace skylob {

/// How far the battle has come, as far as it concerns who may do what.
enum class Phase {
    Setup,     ///< before the first turn
    Turn,      ///< a turn has begun; the computer aims, or a side without men is told so
    Waiting,   ///< for the player whose turn it is
    Watching,  ///< a set that is only watched, for its next command
    Asking,    ///< that player is being asked whether and how to leave
    Shot,      ///< from the firing of a shell to the beginning of the next turn
    Left,      ///< the player has left the set
};

/// What can be wanted of a battle.
enum class Deed {
    Aim,             ///< the speed and angle of the side whose turn it is
    Shoot,           ///< by the button or a piece
    Quit,            ///< by the button or the window's frame
    ChangeOption,    ///< sound, trajectory, wind, game speed
    ClickEffectBox,  ///< meteors, lightning
    BeginEffect,     ///< a meteor or a storm, by its timer
    ReadRules,       ///< in the manual
};

enum class Verdict { No, Now, AfterTheEffect };

/// The one rule of who may act when. It judges what gets through: while input is held, that is
/// a window being closed, or a box that clicks a moment after its access key. What is enabled on
/// the screen follows from it as well.
Verdict verdictOn(Deed deed, Phase phase, bool effectIsUnderWay);

/// Whether a command that has waited for an effect's end is still to be carried out in `phase`. A
/// shot and leaving need a player whose turn it is; a box is as it has been clicked.
bool isStillWanted(Deed deed, Phase phase);

}  // namespace skylob
