#pragma once

#include <QImage>
#include <QWidget>

#include "controls/GlintDesign.h"
#include "controls/GlintInteraction.h"
#include "controls/qt/GlintButtonPictures.h"
#include "controls/qt/GlintKeptDrawing.h"
#include "controls/qt/QtGlintHost.h"

namespace skylob {

class QtShapes;

/// The button of every screen: owner-drawn, with ten events. Only the space bar and the access
/// key press it from the keyboard. Enter does nothing to it, and it is no default button: what
/// Enter presses is its screen's matter.
///
/// It is a widget like any other: setEnabled, font and the rest are the toolkit's. A disabled
/// widget is drawn dull and takes no input, whatever its Enabled property says; the property sets
/// both. The caption is in the font of the Font property, not in the widget's.
///
/// Change its properties through design(); what it is now stands in state(). A picture is named
/// by one of the program's drawings and its size in logical pixels, such as "shell 24", or by
/// the path of a picture file or resource.
class GlintButton : public QWidget {
    Q_OBJECT

  public:
    /// A bare button without size, colours or caption: read its properties from a bag next.
    /// `name` is the control's name on its form. `shapes` must outlive the button.
    GlintButton(const QString& name, const QtShapes& shapes, QWidget* parent);

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
    QImage shownPicture(qreal ratio);

    GlintState m_state;
    GlintPictures m_pictures;
    QtGlintHost m_host;
    GlintDesign m_design;
    GlintInteraction m_interaction;
    GlintKeptDrawing m_drawing;
};

}  // namespace skylob
