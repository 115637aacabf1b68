#pragma once

#include <QFont>
#include <QImage>
#include <QTimer>
#include <QWidget>

#include "controls/GlintDesign.h"
#include "controls/GlintInteraction.h"
#include "controls/qt/GlintButtonPictures.h"

namespace skylob {

class QtShapes;

/// The button of every screen: owner-drawn, with ten events. Only the space bar and the access
/// key press it from the keyboard; Enter does nothing, and there are no default buttons.
///
/// Change its properties through design(); what it is now stands in state(). A picture is named
/// by one of the program's drawings and its size in logical pixels, such as "shell 24", or by
/// the path of a picture file or resource.
class GlintButton : public QWidget,
                    private GlintSurface,
                    private GlintPointer,
                    private GlintEvents {
    Q_OBJECT

  public:
    /// A bare button without size, colours or caption: read its properties from a bag next.
    /// `name` is the control's name on its form. `shapes` must outlive the button.
    GlintButton(const QString& name, const QtShapes& shapes, QWidget* parent);
    ~GlintButton() override;

    GlintDesign& design() { return m_design; }
    const GlintState& state() const { return m_state; }

    /// The caption without its ampersand and in one line.
    QString plainCaption() const;

    /// What an access key does; for screen readers as well.
    void press() { m_interaction.accessKey(); }

    QSize sizeHint() const override;

  signals:
    void Click();
    void MouseDown(const skylob::GlintMouse& mouse);
    void MouseMove(const skylob::GlintMouse& mouse);
    void MouseUp(const skylob::GlintMouse& mouse);
    void KeyPress(int keyAscii);
    void KeyDown(int keyCode, int shift);
    void KeyUp(int keyCode, int shift);
    void MouseOver();
    void MouseIn();
    void MouseOut();

    /// A property's value has changed under this key of its form's bag.
    void PropertyChanged(const QString& key);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void paint(int state, bool flag) override;
    void propertyChanged(std::string_view key) override;
    bool isUserMode() const override { return true; }
    std::string displayName() const override { return objectName().toStdString(); }
    GlintFont ambientFont() const override;
    ContainerColours containerColours() const override;
    GlintFont font() const override { return m_font; }
    void setFont(const GlintFont& font) override;
    void setEnabled(bool enabled) override { QWidget::setEnabled(enabled); }
    std::int16_t mousePointer() const override { return m_pointerShape; }
    void setMousePointer(std::int16_t shape) override;
    PictureReference mouseIcon() const override { return m_mouseIcon; }
    void setMouseIcon(const PictureReference& picture) override;
    void setAccessKeyFrom(const std::string& caption) override;
    GlintSize measurePicture(const PictureReference& picture) const override;
    GlintRect measureCaption(const std::string& caption, const GlintRect& bounds) const override;
    GlintSize clientSize() const override { return {width(), height()}; }
    void setRegion(const std::vector<GlintPixel>& removed) override;
    void captureBackground() override;

    bool IsPointerInside() const override;
    bool isOverTimerRunning() const override { return OverTimer.isActive(); }
    void runOverTimer(bool run) override;
    void captureMouse() override { m_pressedButton = Qt::LeftButton; }

    void raiseClick() override { emit Click(); }
    void raiseMouseDown(const GlintMouse& mouse) override { emit MouseDown(mouse); }
    void raiseMouseMove(const GlintMouse& mouse) override { emit MouseMove(mouse); }
    void raiseMouseUp(const GlintMouse& mouse) override { emit MouseUp(mouse); }
    void raiseKeyPress(std::int16_t keyAscii) override { emit KeyPress(keyAscii); }
    void raiseKeyDown(std::int16_t code, std::int16_t shift) override { emit KeyDown(code, shift); }
    void raiseKeyUp(std::int16_t code, std::int16_t shift) override { emit KeyUp(code, shift); }
    void raiseMouseOver() override { emit MouseOver(); }
    void raiseMouseIn() override { emit MouseIn(); }
    void raiseMouseOut() override { emit MouseOut(); }

    QFont qFont() const;
    QImage shownPicture(qreal ratio) const;
    void updateMousePointer();
    void tellScreenReaders();

    GlintState m_state;
    mutable GlintPictures m_pictures;  ///< remembers what it has read
    GlintDesign m_design;
    GlintInteraction m_interaction;
    QTimer OverTimer;
    GlintFont m_font;
    std::int16_t m_pointerShape = 0;
    PictureReference m_mouseIcon;
    QImage m_backdrop;
    int m_shortcut = 0;
    int m_drawnState = kStateUp;
    bool m_drawnOver = false;
    bool m_toldValue = false;  ///< what screen readers know of Value
    bool m_entered = false;
    Qt::MouseButton m_pressedButton = Qt::NoButton;  ///< whose release makes a click
};

}  // namespace skylob
