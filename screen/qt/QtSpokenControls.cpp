#include "screen/qt/QtSpokenControls.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QScrollBar>

#include "base/qt/QtSpokenWidget.h"

namespace skylob {

namespace {

/// A caption without the marks of access keys.
QString plainCaption(const QString& caption) {
    const QString marker{QChar{1}};
    QString text = caption;
    text.replace(QLatin1String{"&&"}, marker).remove(QLatin1Char{'&'});
    return text.replace(marker, QLatin1String{"&"});
}

class SpokenLabel : public QtSpokenWidget {
  public:
    explicit SpokenLabel(QLabel* label) : QtSpokenWidget{label, QAccessible::StaticText} {}

  protected:
    QString name() const override {
        const QString given = QtSpokenWidget::name();
        return given.isEmpty() ? static_cast<QLabel*>(widget())->text() : given;
    }
};

class SpokenFrame : public QtSpokenWidget {
  public:
    explicit SpokenFrame(QGroupBox* frame) : QtSpokenWidget{frame, QAccessible::Grouping} {}

  protected:
    QString name() const override {
        const QString given = QtSpokenWidget::name();
        return given.isEmpty() ? plainCaption(static_cast<QGroupBox*>(widget())->title()) : given;
    }
};

class SpokenBox : public QtSpokenWidget {
  public:
    explicit SpokenBox(QCheckBox* checkBox) : QtSpokenWidget{checkBox, QAccessible::CheckBox} {}

    QAccessible::State state() const override {
        QAccessible::State state = QtSpokenWidget::state();
        state.checkable = true;
        state.checked = box()->isChecked();
        return state;
    }
    QStringList actionNames() const override {
        return QStringList{toggleAction()} + QtSpokenWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action != toggleAction())
            QtSpokenWidget::doAction(action);
        else if (box()->isVisible())
            box()->click();  // which does nothing where it is disabled
    }

  protected:
    QString name() const override {
        const QString given = QtSpokenWidget::name();
        return given.isEmpty() ? plainCaption(box()->text()) : given;
    }
    QKeySequence key() const override {
        const QKeySequence shown = box()->shortcut();
        return shown.isEmpty() ? QtSpokenWidget::key() : shown;
    }

  private:
    QCheckBox* box() const { return static_cast<QCheckBox*>(widget()); }
};

class SpokenBar : public QtSpokenWidget, public QAccessibleValueInterface {
  public:
    explicit SpokenBar(QScrollBar* scrollBar) : QtSpokenWidget{scrollBar, QAccessible::ScrollBar} {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QtSpokenWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? QString::number(bar()->value())
                                          : QtSpokenWidget::text(kind);
    }
    QVariant currentValue() const override { return bar()->value(); }
    void setCurrentValue(const QVariant& value) override { bar()->setValue(value.toInt()); }
    QVariant minimumValue() const override { return bar()->minimum(); }
    QVariant maximumValue() const override { return bar()->maximum(); }
    QVariant minimumStepSize() const override { return bar()->singleStep(); }

  private:
    QScrollBar* bar() const { return static_cast<QScrollBar*>(widget()); }
};

/// The toolkit asks for an object's class first and then for those above it.
QAccessibleInterface* makeSpoken(const QString& className, QObject* object) {
    if (className == QLatin1String{"QLabel"}) return new SpokenLabel{static_cast<QLabel*>(object)};
    if (className == QLatin1String{"QCheckBox"})
        return new SpokenBox{static_cast<QCheckBox*>(object)};
    if (className == QLatin1String{"QScrollBar"})
        return new SpokenBar{static_cast<QScrollBar*>(object)};
    if (className == QLatin1String{"QGroupBox"})
        return new SpokenFrame{static_cast<QGroupBox*>(object)};
    if (className == QLatin1String{"QFrame"} || className == QLatin1String{"QWidget"})
        return new QtSpokenWidget{static_cast<QWidget*>(object), QAccessible::Client};
    if (className == QLatin1String{"QDialog"})
        return new QtSpokenWidget{static_cast<QWidget*>(object), QAccessible::Dialog};
    return nullptr;
}

}  // namespace

void installSpokenControls() {
    QAccessible::removeFactory(makeSpoken);
    QAccessible::installFactory(makeSpoken);
}

}  // namespace skylob
