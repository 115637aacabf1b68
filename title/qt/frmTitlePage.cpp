#include "title/qt/frmTitlePage.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>

#include "base/OpenLink.h"
#include "base/Release.h"
#include "base/basSkylob.h"
#include "base/qt/QtText.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtFormButtons.h"
#include "screen/Fade.h"
#include "screen/qt/QtLinkLabel.h"
#include "title/TitlePage.h"
#include "title/qt/QtScaleChoice.h"
#include "title/qt/QtTitleAnimation.h"
#include "title/qt/QtTitlePicture.h"

namespace skylob {

namespace {

QLabel* addLabel(const char* name, const QString& text, const char* role, const QRect& place,
                 QWidget* parent) {
    auto* label = new QLabel{text, parent};
    label->setObjectName(QLatin1String{name});
    label->setGeometry(place);
    label->setProperty("role", QLatin1String{role});
    return label;
}

}  // namespace

// Quirk "page without a caption": without the blank the toolkit would put in one.
frmTitlePage::frmTitlePage(const QtScreenPorts& ports, const Clock& clock, SoundPlayer& sounds,
                           LinkOpener& links, MessageBoxes& boxes, int scale)
    : QtScreen{{.name = QStringLiteral("frmTitlePage"),
                .caption = QStringLiteral(" "),
                .size = {kTitleWidth, kTitlePageHeight},
                .fadesIn = false},
               ports},
      m_clock{clock},
      m_sounds{sounds},
      m_links{links},
      m_boxes{boxes},
      m_picture{new QtTitleAnimation{m_shapes, m_shared.motion, this}} {
    setAccessibleName(toQt(kProgramTitle));
    makeLabels();
    makeButtons(scale);
}

void frmTitlePage::makeLabels() {
    addLabel("labelAppTitle", toQt(kProgramTitle), "title", {24, 288, 380, 60}, this);
    addLabel("labelAppDescription", toQt(kDescription), "description", {24, 346, 380, 26}, this);
    addLabel("labelVersion", QString::fromStdString(title::versionLabel(kVersion)), "note",
             {24, 382, 380, 20}, this);
    auto* labelCopyright = new QtLinkLabel{toQt(kCopyright), this};
    labelCopyright->setObjectName(QStringLiteral("labelCopyright"));
    labelCopyright->move(20, 402);  // its text, behind the focus frame, at 24
    labelCopyright->setFixedHeight(20);
    connect(labelCopyright, &QtLinkLabel::Click, this,
            [this] { OpenLink(LinkKind::Web, "", m_links, m_boxes); });
}

void frmTitlePage::makeButtons(int scale) {
    QtFormButtons buttons{objectName(), m_shapes, *this};
    cmdContinue = buttons.make(QStringLiteral("cmdContinue"), {456, 368, 160, 48});
    cmdContinue->setFocus();
    connect(cmdContinue, &GlintButton::Click, this, &frmTitlePage::cmdContinue_Click);
    GlintButton* const cmdScale = buttons.make(QStringLiteral("cmdScale"), {456, 304, 160, 36},
                                               tr(" How large everything is shown "));
    auto* labelScale = addLabel("labelScale", {}, "note", {396, 342, 220, 22}, this);
    labelScale->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    new QtScaleChoice{cmdScale, labelScale, m_windows, scale};
}

void frmTitlePage::cmdContinue_Click() {
    if (title::wantsWelcome(m_settings)) emit newUserCame();
    leave(
        [this] {
            // Quirk "greeting after a fade": without one nothing is said.
            if (m_shared.FadeActive) title::greet(m_clock, m_sounds);
            emit continued();
        },
        kSlowFadeStep);
}

bool frmTitlePage::event(QEvent* event) {
    // Behind the welcome, which is read in peace, the picture rests.
    if (event->type() == QEvent::WindowBlocked) m_picture->pause();
    if (event->type() == QEvent::WindowUnblocked) m_picture->resume();
    return QtScreen::event(event);
}

void frmTitlePage::paintGround(QPainter& painter, const QRect&) {
    painter.setRenderHint(QPainter::Antialiasing);
    paintTitleGround(painter, m_shapes);
}

void frmTitlePage::askedToClose() {
    hide();
    emit closed();
}

}  // namespace skylob
