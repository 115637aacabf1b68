#include "players/qt/QtChosenPlayer.h"

#include <QKeyEvent>

#include "base/qt/QtSpokenWidget.h"
#include "look/qt/QtLook.h"

namespace skylob {

namespace {

constexpr std::initializer_list<int> kNameSizes{kLargeSize, kTextSize};
constexpr int kSlotTop = 34, kSlotHeight = 38, kPadding = 12;

QLabel* labelInSlot(const char* role, QWidget* parent) {
    auto* label = new QLabel{parent};
    label->setAlignment(Qt::AlignCenter);
    label->setTextFormat(Qt::PlainText);
    label->setProperty("role", QLatin1String{role});
    return label;
}

}  // namespace

QtChosenPlayer::QtChosenPlayer(int side, QWidget* parent)
    : QtSideFrame{side, parent},
      m_name{labelInSlot("chosen", this)},
      m_hint{labelInSlot("slot", this)} {
    setBadge(Badge::Filled);
    m_hint->setText(side == 1 ? tr("Double-click a name") : tr("Double-click another name"));
    m_hint->setAccessibleName(tr("%1, or press Enter on it").arg(m_hint->text()));
    m_name->setObjectName(QStringLiteral("labelPlayerName(%1)").arg(side));
    m_name->installEventFilter(this);
    if (side == 2) return;
    m_name->setFocusPolicy(Qt::StrongFocus);
    m_name->setAccessibleDescription(tr("Double-click it or press Enter to unselect"));
}

void QtChosenPlayer::setName(const QString& name) {
    m_shownName = name;
    setSpokenName(*m_name, name);
    m_name->setVisible(!name.isEmpty());
    m_hint->setVisible(name.isEmpty());
    showFitting(*m_name, name, kNameSizes);
}

void QtChosenPlayer::resizeEvent(QResizeEvent* event) {
    QtSideFrame::resizeEvent(event);
    for (QLabel* label : {m_name, m_hint})
        label->setGeometry(kPadding, kSlotTop, width() - 2 * kPadding, kSlotHeight);
    showFitting(*m_name, m_shownName, kNameSizes);
}

bool QtChosenPlayer::eventFilter(QObject*, QEvent* event) {
    const auto isEnter = [event] {
        const int key = static_cast<QKeyEvent*>(event)->key();
        return key == Qt::Key_Return || key == Qt::Key_Enter;
    };
    const bool doubleClick = event->type() == QEvent::MouseButtonDblClick;
    if (!doubleClick && !(event->type() == QEvent::KeyPress && isEnter())) return false;
    emit nameDoubleClicked();
    return true;
}

}  // namespace skylob
