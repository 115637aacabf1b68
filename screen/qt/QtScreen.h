#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "screen/Fade.h"

class QEventLoop;

namespace skylob {

class GlintButton;
class QtScreenFade;
class QtScrollBoard;
class QtShapes;
class SettingsStore;
class WindowStore;
struct basSkylob;

/// What every screen needs; all of it must outlive the screen.
struct QtScreenPorts {
    basSkylob& shared;
    SettingsStore& settings;
    const QtShapes& shapes;
    WindowStore& windows;
};

/// What one screen is to be.
struct QtScreenDesign {
    QString name;  ///< as an object, such as "frmManual"
    QString caption;
    QSize size;                        ///< logical pixels, without the frame
    Qt::WindowType type = Qt::Window;  ///< Dialog for what is run with showModal()
    bool fadesIn = true;               ///< where the user wants it and the display can
    bool mayGrow = false;  ///< the user may make it larger: then `size` is its smallest and first,
                           ///< and where it stands is remembered
};

/// One screen of the program: a window in the program's look, of fixed size unless it may grow. It
/// comes up once and goes once, each in a fade where the user wants it and the display can, and
/// takes no input meanwhile.
class QtScreen : public QWidget {
    Q_OBJECT

  public:
    QtScreen(const QtScreenDesign& design, const QtScreenPorts& ports);

    /// Shows the screen over another one, which may be null, and returns when it has gone. Until
    /// then no other window of the program takes input.
    void showModal(const QWidget* above);

    bool mayGrow() const { return m_scroll != nullptr; }

    /// Keeps a screen that may grow within the room that its display has for it. Where that is less
    /// than its smallest size, the screen scrolls.
    void fitInto(const QSize& room);

    /// Makes screen readers find a dialog in every modal screen, a window in every other.
    static void installAccessible();

  protected:
    /// The set-up that waits until the screen is shown. Called once, while it comes up.
    virtual void Form_Activate() {}

    /// The user wants to close the window by its frame, or with Esc if it is modal, and it may be
    /// closed. It stays unless this hides it or calls leave().
    virtual void askedToClose() = 0;

    /// The button that Enter presses, as its access key would; null where Enter does nothing. Asked
    /// anew at each press. What the focused control makes of Enter itself goes before.
    virtual GlintButton* primaryButton() const { return nullptr; }

    /// What the widgets of a screen that may grow are to be children of: as large as the screen,
    /// and never smaller than its smallest size.
    QWidget* board() const;

    /// Where the board scrolls: brings that widget into view, until the focus moves on.
    void bringIntoView(QWidget* widget);

    /// The board has another size. Not called before the screen is shown.
    virtual void boardResized() {}

    /// False during a fade and from beginLeaving() on.
    bool mayClose() const;

    /// From now on the screen is going. False when it was going before.
    bool beginLeaving();

    /// After beginLeaving(): fades the screen out by `step` a tick, or does not; hides it, and then
    /// calls `next`.
    void finishLeaving(std::function<void()> next = {}, int step = kFadeStep);

    /// Both, once only.
    void leave(std::function<void()> next = {}, int step = kFadeStep);

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    basSkylob& m_shared;
    SettingsStore& m_settings;
    const QtShapes& m_shapes;
    WindowStore& m_windows;

  private:
    void fitToDisplay();

    QtScreenFade* m_fade;
    QtScrollBoard* m_scroll = nullptr;  ///< of a screen that may grow
    const QSize m_smallest;
    QEventLoop* m_modalLoop = nullptr;  ///< while showModal() waits
    bool m_activated = false, m_leaving = false;
};

}  // namespace skylob
