#pragma once

#include <QRect>

#include "controls/qt/QtPropertyBagFile.h"

class QWidget;

namespace skylob {

class GlintButton;
class QtShapes;

/// Makes a screen's buttons as the form's property bags describe them.
class QtFormButtons {
  public:
    /// `form` names the bags, which are compiled into the program. `screen` becomes the buttons'
    /// parent; `shapes` must outlive them.
    QtFormButtons(const QString& form, const QtShapes& shapes, QWidget& screen)
        : m_bags{formBags(form)}, m_shapes{shapes}, m_screen{screen} {}

    GlintButton* make(const QString& name, const QRect& place, const QString& toolTip = {});

  private:
    QtPropertyBagFile m_bags;
    const QtShapes& m_shapes;
    QWidget& m_screen;
};

}  // namespace skylob
