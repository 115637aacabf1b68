#include "manual/qt/frmManual.h"

#include <QActionGroup>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QTextEdit>

#include "base/OpenLink.h"
#include "base/qt/QtSpokenWidget.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtFormButtons.h"
#include "manual/PrintLayout.h"
#include "manual/qt/QtManualPrinter.h"
#include "screen/qt/QtLinkLabel.h"

namespace skylob {

namespace {

struct Topic {
    const char* caption;
    int text;  ///< number in the string table
};

/// In the order of ManualTopic.
constexpr Topic kTopics[] = {{"Program &Overview", 1000},
                             {"The &Player List", 1100},
                             {"&Rules of a Game", 1200},
                             {"&Strategy", 1300}};

/// Without its access key.
QString captionOf(const QAction& item) {
    return item.text().remove(QLatin1Char{'&'});
}

}  // namespace

frmManual::frmManual(const QtScreenPorts& ports, const StringTable& texts, LinkOpener& links,
                     MessageBoxes& boxes, ManualTopic topic)
    : QtScreen{{.name = QStringLiteral("frmManual"),
                .caption = QStringLiteral(" Skylob - Help Window"),
                .size = {720, 540}},
               ports},
      m_texts{texts},
      m_links{links},
      m_boxes{boxes},
      labelHelpTopic{new QLabel{this}},
      txtManual{new QTextEdit{this}},
      m_topics{new QMenu{this}},
      menuHelpTopic{new QActionGroup{this}} {
    labelHelpTopic->setObjectName(QStringLiteral("labelHelpTopic"));
    labelHelpTopic->setGeometry(16, 12, 688, 32);
    labelHelpTopic->setProperty("role", QStringLiteral("topic"));
    keepFromReaders(*labelHelpTopic);  // the text has it for a name
    txtManual->setObjectName(QStringLiteral("txtManual"));
    txtManual->setGeometry(16, 52, 688, 408);
    txtManual->setReadOnly(true);
    txtManual->setTabChangesFocus(true);
    makeMenu();
    makeButtons();
    txtManual->setFocus();
    menuHelpTopic_Click(static_cast<int>(topic));
}

void frmManual::makeMenu() {
    m_topics->setObjectName(QStringLiteral("menuHelpTopic"));
    m_topics->setAccessibleName(tr("Help Topics"));
    for (const Topic& topic : kTopics) {
        QAction* item = m_topics->addAction(tr(topic.caption));
        item->setCheckable(true);
        item->setData(topic.text);
        menuHelpTopic->addAction(item);
    }
    connect(menuHelpTopic, &QActionGroup::triggered, this, [this](QAction* item) {
        menuHelpTopic_Click(static_cast<int>(menuHelpTopic->actions().indexOf(item)));
    });
}

void frmManual::makeButtons() {
    QtFormButtons buttons{objectName(), m_shapes, *this};
    cmdHelpTopic = buttons.make(QStringLiteral("cmdHelpTopic"), {16, 472, 176, 52});
    connect(cmdHelpTopic, &GlintButton::Click, this, &frmManual::cmdHelpTopic_Click);
    connect(new QShortcut{Qt::Key_F1, this}, &QShortcut::activated, this,
            &frmManual::cmdHelpTopic_Click);
    cmdPrintHelp = buttons.make(QStringLiteral("cmdPrintHelp"), {204, 472, 120, 52},
                                QStringLiteral(" Be sure your printer is ready! "));
    connect(cmdPrintHelp, &GlintButton::Click, this, &frmManual::cmdPrintHelp_Click);
    auto* labelContact = new QtLinkLabel{tr("Questions? Write to us."), this};
    labelContact->setObjectName(QStringLiteral("labelContact"));
    labelContact->move(348, 488);
    connect(labelContact, &QtLinkLabel::Click, this,
            [this] { OpenLink(LinkKind::Mail, "", m_links, m_boxes); });
    cmdReturn = buttons.make(QStringLiteral("cmdReturn"), {560, 472, 144, 52});
    connect(cmdReturn, &GlintButton::Click, this, &frmManual::cmdReturn_Click);
    connect(new QShortcut{Qt::Key_Escape, this}, &QShortcut::activated, this,
            &frmManual::cmdReturn_Click);
}

void frmManual::menuHelpTopic_Click(int index) {
    QAction& item = *menuHelpTopic->actions().at(index);
    item.setChecked(true);  // and no other
    labelHelpTopic->setText(captionOf(item));
    txtManual->setAccessibleName(captionOf(item));
    txtManual->setPlainText(QString::fromStdString(m_texts.text(item.data().toInt())));
}

void frmManual::cmdHelpTopic_Click() {
    const int height = m_topics->sizeHint().height();
    m_topics->popup(cmdHelpTopic->mapToGlobal(QPoint{0, -height}));
}

void frmManual::cmdPrintHelp_Click() {
    const QAction& item = *menuHelpTopic->checkedAction();
    if (!printManual(*this, helpSectionHeader(captionOf(item).toStdString()),
                     m_texts.text(item.data().toInt())))
        m_boxes.show({"Error", "The file could not be written!", BoxIcon::Critical});
}

void frmManual::cmdReturn_Click() {
    leave([this] { emit returned(); });
}

void frmManual::askedToClose() {
    cmdReturn_Click();
}

}  // namespace skylob
