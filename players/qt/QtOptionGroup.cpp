#include "players/qt/QtOptionGroup.h"

#include <QButtonGroup>
#include <QRadioButton>

namespace skylob {

namespace {

constexpr QSize kOption{156, 24};
constexpr QPoint kFirstOption{14, 30};

class Option : public QRadioButton {
  public:
    using QRadioButton::QRadioButton;

  protected:
    /// The toolkit's own would open all options to Tab when one that is not checked is clicked.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    void focusInEvent(QFocusEvent* event) override { QWidget::focusInEvent(event); }
};

}  // namespace

QtOptionGroup::QtOptionGroup(const QString& name, const QString& title, const QStringList& captions,
                             QWidget* parent)
    : QGroupBox{title, parent}, m_group{new QButtonGroup{this}} {
    for (int i = 0; i < captions.size(); ++i) {
        const int index = i + 1;
        auto* button = new Option{captions[i], this};
        button->setObjectName(QStringLiteral("%1(%2)").arg(name).arg(index));
        button->setGeometry({kFirstOption + QPoint{0, i * kOption.height()}, kOption});
        button->setFocusPolicy(Qt::ClickFocus);
        connect(button, &QRadioButton::toggled, button, [button](bool checked) {
            button->setFocusPolicy(checked ? Qt::StrongFocus : Qt::ClickFocus);
        });
        m_group->addButton(button, index);
    }
    connect(m_group, &QButtonGroup::idClicked, this, &QtOptionGroup::chosen);
}

void QtOptionGroup::check(int index) {
    m_group->button(index)->setChecked(true);
}

QList<QWidget*> QtOptionGroup::buttons() const {
    QList<QWidget*> buttons;
    for (QAbstractButton* button : m_group->buttons()) buttons.append(button);
    return buttons;
}

}  // namespace skylob
