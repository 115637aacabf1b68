#include "title/qt/QtScaleChoice.h"

#include <QActionGroup>
#include <QLabel>
#include <QMenu>

#include "base/Scale.h"
#include "controls/qt/GlintButton.h"

namespace skylob {

QtScaleChoice::QtScaleChoice(GlintButton* button, QLabel* note, WindowStore& windows, int scaleNow)
    : QObject{button->parent()},
      m_button{button},
      m_note{note},
      m_windows{windows},
      m_scaleNow{scaleNow} {
    connect(m_button, &GlintButton::Click, this, &QtScaleChoice::popUp);
    tell(scaleNow);
}

void QtScaleChoice::tell(int percent) {
    m_chosen = percent;
    m_button->design().setCaption(tr("&Size  %1 %").arg(percent).toStdString());
    m_note->setText(tr("%1 % from the next start").arg(percent));
    m_note->setVisible(percent != m_scaleNow);
}

void QtScaleChoice::makeMenu() {
    m_menu = new QMenu{m_button->window()};
    m_menu->setObjectName(QStringLiteral("menuScale"));
    m_menu->setMinimumWidth(m_button->width());
    m_items = new QActionGroup{m_menu};
    for (const int percent : kScales) {
        QAction* item = m_menu->addAction(tr("%1 %").arg(percent));
        item->setCheckable(true);
        item->setData(percent);
        m_items->addAction(item);
    }
    connect(m_items, &QActionGroup::triggered, this, [this](const QAction* item) {
        keepScale(m_windows, item->data().toInt());
        tell(item->data().toInt());
    });
}

void QtScaleChoice::popUp() {
    if (!m_menu) makeMenu();
    for (QAction* item : m_items->actions()) {
        item->setChecked(item->data() == m_chosen);
        if (item->isChecked()) m_menu->setActiveAction(item);
    }
    m_menu->popup(m_button->mapToGlobal(QPoint{0, -m_menu->sizeHint().height()}));
}

}  // namespace skylob
