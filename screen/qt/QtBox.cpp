#include "screen/qt/QtBox.h"

#include <QAccessible>
#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "base/qt/QtInput.h"
#include "base/qt/QtSpokenWidget.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtPropertyBagFile.h"
#include "look/qt/QtLook.h"
#include "look/qt/QtShapes.h"

namespace skylob {

namespace {

constexpr int kMargin = 16, kGap = 16, kButtonGap = 8;
constexpr QSize kIcon{40, 40}, kButton{104, 36};
constexpr int kWidestText = 480;  ///< before lines are broken

/// One of the program's drawings, sharp on every display.
class Drawing : public QWidget {
  public:
    Drawing(const QtShapes& shapes, QString name, QWidget* parent)
        : QWidget{parent}, m_shapes{shapes}, m_name{std::move(name)} {
        setObjectName(QStringLiteral("icon"));
        setFixedSize(kIcon);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter{this};
        m_shapes.paint(painter, m_name, rect(), QtShapes::Edges::Smooth);
    }

  private:
    const QtShapes& m_shapes;
    QString m_name;
};

/// The window manager draws the title, in a font that it keeps to itself, between its buttons: room
/// for eight is enough for most of them.
int widthForTitle(const QString& title) {
    QFont font = QApplication::font();
    font.setBold(true);
    const QFontMetrics metrics{font};
    return metrics.horizontalAdvance(title) + 8 * metrics.height();
}

/// Lines are broken between words, where they are too long, but no word is cut.
void fit(QLabel& label, int narrowest) {
    label.ensurePolished();
    const QFontMetrics metrics{label.font()};
    int widestLine = narrowest, widestWord = kWidestText;
    for (const QString& line : label.text().split(u'\n')) {
        widestLine = std::max(widestLine, metrics.horizontalAdvance(line) + 1);
        for (const QString& word : line.split(u' '))
            widestWord = std::max(widestWord, metrics.horizontalAdvance(word) + 1);
    }
    label.setWordWrap(widestLine > widestWord);
    label.setMinimumWidth(std::min(widestLine, std::max(widestWord, narrowest)));
}

struct Kind {
    const char *name, *caption;
    bool accepts;
};

Kind kindOf(QtBox::Answer answer) {
    switch (answer) {
        case QtBox::Answer::Yes:
            return {"cmdYes", "&Yes", true};
        case QtBox::Answer::No:
            return {"cmdNo", "&No", false};
        case QtBox::Answer::Ok:
            return {"cmdOk", "&OK", true};
        case QtBox::Answer::Cancel:
            break;
    }
    return {"cmdCancel", "&Cancel", false};
}

}  // namespace

QtBox::QtBox(const QString& title, const QString& text, const QtShapes& shapes)
    : m_shapes{shapes},
      m_message{new QHBoxLayout},
      m_buttons{new QHBoxLayout},
      m_texts{new QVBoxLayout} {
    setObjectName(QStringLiteral("box"));
    // "[*]" would stand for an unsaved document.
    setWindowTitle(QString{title}.replace(QLatin1String{"[*]"}, QLatin1String{"[*][*]"}));
    setAccessibleName(title);
    applyLook(*this);
    m_label = new QLabel{this};
    m_label->setObjectName(QStringLiteral("labelText"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setText(text);
    fit(*m_label, widthForTitle(title) - 2 * kMargin);
    m_texts->addWidget(m_label, 0, Qt::AlignVCenter);
    m_message->setSpacing(kGap);
    m_message->addLayout(m_texts, 1);
    m_buttons->setSpacing(kButtonGap);
    m_buttons->addStretch();
    auto* all = new QVBoxLayout{this};
    all->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    all->setSpacing(kGap);
    all->setSizeConstraint(QLayout::SetFixedSize);
    all->addLayout(m_message);
    all->addLayout(m_buttons);
}

void QtBox::setIcon(const QString& drawing) {
    m_message->insertWidget(0, new Drawing{m_shapes, drawing, this}, 0, Qt::AlignTop);
    m_isAlert = true;
}

QLineEdit* QtBox::addEntry(const QString& text) {
    auto* entry = new QLineEdit{text, this};
    entry->setObjectName(QStringLiteral("entry"));
    entry->setAccessibleName(m_label->text().simplified());
    keepFromReaders(*m_label);
    entry->selectAll();
    entry->setFocus();
    m_texts->setSpacing(kButtonGap);
    m_texts->addWidget(entry);
    return entry;
}

void QtBox::addButtons(const std::vector<Answer>& answers, Answer preset) {
    for (const Answer answer : answers) {
        GlintButton* const button = makeButton(answer, answer == preset);
        m_buttons->addWidget(button);
        if (answer == preset) m_default = button;
    }
    if (m_default && !focusWidget()) m_default->setFocus();
}

GlintButton* QtBox::makeButton(Answer answer, bool isPreset) {
    const Kind kind = kindOf(answer);
    auto* button = new GlintButton{QLatin1String{kind.name}, m_shapes, this};
    auto bags = formBags(QStringLiteral("QtBox"));
    button->design().readProperties(
        bags.bag(isPreset ? QStringLiteral("primary") : QStringLiteral("neutral")));
    button->design().setCaption(kind.caption);
    button->setFixedSize(kButton);
    connect(button, &GlintButton::Click, this, kind.accepts ? &QDialog::accept : &QDialog::reject);
    return button;
}

void QtBox::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!m_isAlert) return;
    QAccessibleEvent alert{this, QAccessible::Alert};
    QAccessible::updateAccessibility(&alert);
}

void QtBox::keyPressEvent(QKeyEvent* event) {
    if (!isEnter(*event)) return QDialog::keyPressEvent(event);
    auto* const focused = qobject_cast<GlintButton*>(focusWidget());
    if (GlintButton* const button = focused ? focused : m_default) button->press();
}

}  // namespace skylob
