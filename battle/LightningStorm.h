#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "battle/BattleView.h"
#include "battle/ShellFlight.h"
#include "battle/Sky.h"
#include "battle/SwitchedSounds.h"

namespace skylob {

/// A bolt from its start downwards, a unit of height with each point; in columns 5..995 and more
/// than 5 above the ground.
using Bolt = std::vector<FieldPoint>;

/// Draws a bolt's path: its tendency at the start and after every 100 points, the length and the
/// sense of each of its short runs. `mayGoOn` is asked whenever a tendency has been drawn.
Bolt boltPath(FieldPoint start, const Battlefield& field, RandomSource& random,
              const std::function<bool()>& mayGoOn);

/// Where the next bolt starts: the first one, and every other one in chance's favour, in the sky,
/// the rest at a point of the middle third of the one before.
FieldPoint boltStart(const Bolt& previous, RandomSource& random);

/// What the player reads while a storm holds the field, with minutes and seconds to go. `closing`:
/// the window has been asked to close, which waits for the storm's end.
std::string stormReport(std::int32_t millisecondsLeft, bool closing);

/// Thunderstorms over the battlefield: one to four bolts, a long pause, thunder.
class LightningStorm {
  public:
    /// All of these must outlive the storm.
    LightningStorm(const Sky& sky, SwitchedSounds& sounds, Pacer& pacer, BattleView& view)
        : m_sky{sky}, m_sounds{sounds}, m_pacer{pacer}, m_view{view} {}

    /// One storm, to its end or, while the bolts strike, to its interruption. The view's input is
    /// held from the bolts on.
    void rage();

  private:
    void strike(int bolts);
    void draw(const Bolt& bolt);
    void holdTheField(int seconds);
    void thunder(int bolts);
    void clearSky();

    Sky m_sky;
    SwitchedSounds& m_sounds;
    Pacer& m_pacer;
    BattleView& m_view;
};

}  // namespace skylob
