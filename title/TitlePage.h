#pragma once

#include <string>
#include <string_view>

#include "base/Clock.h"
#include "base/SettingsStore.h"
#include "base/SoundPlayer.h"

/// What the first two screens, the title page and the welcome, have for rules.
namespace skylob::title {

/// "Version w1.2.3" for the version "1.2.3". A part that is 0 is left empty, its dot stays.
std::string versionLabel(std::string_view version);

/// Whether the user has not yet asked to be spared the welcome.
bool wantsWelcome(const SettingsStore& settings);

/// Spares the user the welcome from now on.
void endWelcomes(SettingsStore& settings);

/// The welcome's message around the overview of the program.
std::string welcomeMessage(std::string_view overview);

/// Says hello at the end of the title page's fade, in some seconds of the minute only. The sound
/// option of the battles has no say in it.
void greet(const Clock& clock, SoundPlayer& sounds);

}  // namespace skylob::title
