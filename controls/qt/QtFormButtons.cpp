#include "controls/qt/QtFormButtons.h"

#include "controls/qt/GlintButton.h"

namespace skylob {

GlintButton* QtFormButtons::make(const QString& name, const QRect& place, const QString& toolTip) {
    auto* button = new GlintButton{name, m_shapes, &m_screen};
    button->design().readProperties(m_bags.bag(name));
    button->setGeometry(place);
    button->setToolTip(toolTip);
    return button;
}

}  // namespace skylob
