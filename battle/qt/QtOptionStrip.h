#pragma once

#include <QFrame>

#include "base/WindowStore.h"
#include "battle/BattleOptions.h"
#include "battle/qt/frmPlayGameLayout.h"

class QCheckBox;
class QLabel;
class QScrollBar;

namespace skylob {

/// The strip of options at the battle screen's lower edge. Where it has no room for the game speed,
/// that stands above it, on the screen itself.
class QtOptionStrip : public QFrame {
    Q_OBJECT

  public:
    /// On the screen's `board`. `windows`, which remembers volume and effects, and `options`, which
    /// hear of all else, must outlive the strip.
    QtOptionStrip(const frmPlayGameLayout& layout, WindowStore& windows, BattleOptions& options,
                  QWidget* board);

    void place(const frmPlayGameLayout& layout);
    void showPanel(const BattlePanel& panel);

    /// In the order of the Tab key.
    QList<QWidget*> controls() const;
    QScrollBar* gameSpeed() const { return scrollGameSpeed; }
    QScrollBar* volume() const { return scrollVolume; }
    QCheckBox* wind() const { return chkWind; }

    bool wantsEffects() const;
    void rememberVolume() const;

  signals:
    /// Neither is known to a rule, and neither is an activity.
    void volumeChosen(int percent);
    void effectsChosen(bool wanted);

  private:
    QCheckBox* makeBox(const char* name, const QString& caption);
    void makeGameSpeed(const frmPlayGameLayout& layout, QWidget* board);
    void makeVolume(const frmPlayGameLayout& layout);
    void makeEffects();
    void connectTo(BattleOptions& options);

    WindowStore& m_windows;
    QLabel* labelGameSpeed;
    QScrollBar *scrollGameSpeed, *scrollVolume;
    QCheckBox *chkSound, *chkTrajectory, *chkMeteors, *chkLightning, *chkWind, *chkEffects;
};

}  // namespace skylob
