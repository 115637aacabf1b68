#include "screen/qt/QtLinkLabel.h"

#include <QKeyEvent>

#include "base/qt/QtSpokenWidget.h"

namespace skylob {

namespace {

class AccessibleLink : public QtSpokenWidget {
  public:
    explicit AccessibleLink(QtLinkLabel* label) : QtSpokenWidget{label, QAccessible::Link} {}

    QStringList actionNames() const override {
        return QStringList{pressAction()} + QtSpokenWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == pressAction())
            emit static_cast<QtLinkLabel*>(widget())->Click();
        else
            QtSpokenWidget::doAction(name);
    }
};

QAccessibleInterface* makeLinkAccessible(const QString&, QObject* object) {
    auto* label = qobject_cast<QtLinkLabel*>(object);
    return label ? new AccessibleLink{label} : nullptr;
}

}  // namespace

QtLinkLabel::QtLinkLabel(const QString& text, QWidget* parent) : QLabel{text, parent} {
    setProperty("role", QStringLiteral("link"));
    setAccessibleName(text);
    setIndent(0);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
}

void QtLinkLabel::installAccessible() {
    QAccessible::installFactory(makeLinkAccessible);
}

/// When it is made ready, and when it gets the focus, a label that can have the focus makes a
/// document of its text, to select from. Nothing is selected here, and that takes longer than all
/// else about the title page's texts: these two events pass the label by.
// NOLINTBEGIN(bugprone-parent-virtual-call)
bool QtLinkLabel::event(QEvent* event) {
    return event->type() == QEvent::Polish ? QFrame::event(event) : QLabel::event(event);
}

void QtLinkLabel::focusInEvent(QFocusEvent* event) {
    QFrame::focusInEvent(event);
}
// NOLINTEND(bugprone-parent-virtual-call)

void QtLinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Click();
}

void QtLinkLabel::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter)
        return QLabel::keyPressEvent(event);
    if (!event->isAutoRepeat()) emit Click();
}

}  // namespace skylob
