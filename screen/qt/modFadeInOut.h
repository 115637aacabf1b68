#pragma once

class QWidget;

namespace skylob {

class SettingsStore;
enum class Motion;

enum class FadeDemand { WhenEnabled, Always };

/// Gives a screen, which need not be shown yet, an opacity of 0..255. True when that has an effect:
/// it takes an X11 display with a compositing manager, and a user who can bear motion.
/// `WhenEnabled` does nothing and gives false unless the user has switched fading on; `Always`
/// finds out whether it could be.
bool SetFormAlpha(QWidget& form, int alpha, FadeDemand demand, const SettingsStore& settings,
                  Motion motion);

/// The opacity of a screen that SetFormAlpha() has found to be able to fade. Sent to the display at
/// once.
void applyOpacity(QWidget& form, int alpha);

}  // namespace skylob
