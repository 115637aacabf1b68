#include "title/qt/frmTitlePage.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPainter>

#include "base/OpenLink.h"
#include "base/Release.h"
#include "base/qt/QtText.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtFormButtons.h"
#include "look/qt/QtLook.h"
#include "screen/Fade.h"
#include "screen/qt/QtLinkLabel.h"
#include "screen/qt/QtScreenFade.h"
#include "title/TitlePage.h"
#include "title/qt/QtTitleAnimation.h"
#include "title/qt/QtTitlePicture.h"

namespace skylob {

namespace {

void place(QLabel* label, const char* role, const QRect& where) {
    label->setGeometry(where);
    label->setProperty("role", QLatin1String{role});
}

}  // namespace

frmTitlePage::frmTitlePage(basSkylob& shared, const frmTitlePagePorts& ports)
    : m_shared{shared},
      m_ports{ports},
      m_fade{new QtScreenFade{this, shared, ports.settings}},
      m_picture{new QtTitleAnimation{ports.shapes, this}} {
    // The page has no caption; without the blank the toolkit would put in one.
    setWindowTitle(QStringLiteral(" "));
    setAccessibleName(toQt(kProgramTitle));
    applyLook(*this);
    setFixedSize(640, 440);
    makeLabels();
    auto* cmdContinue = QtFormButtons{QStringLiteral("frmTitlePage"), ports.shapes, *this}.make(
        QStringLiteral("cmdContinue"), {456, 368, 160, 48});
    cmdContinue->setFocus();
    connect(cmdContinue, &GlintButton::Click, this, &frmTitlePage::cmdContinue_Click);
}

void frmTitlePage::makeLabels() {
    auto* labelAppTitle = new QLabel{toQt(kProgramTitle), this};
    place(labelAppTitle, "title", {24, 288, 380, 60});
    auto* labelAppDescription = new QLabel{toQt(kDescription), this};
    place(labelAppDescription, "description", {24, 346, 380, 26});
    auto* labelVersion = new QLabel{QString::fromStdString(title::versionLabel(kVersion)), this};
    place(labelVersion, "note", {24, 382, 380, 20});
    auto* labelCopyright = new QtLinkLabel{toQt(kCopyright), this};
    labelCopyright->move(24, 402);
    labelCopyright->setFixedHeight(20);
    connect(labelCopyright, &QtLinkLabel::Click, this,
            [this] { OpenLink(LinkKind::Web, "", m_ports.links, m_ports.boxes); });
}

void frmTitlePage::cmdContinue_Click() {
    if (title::wantsWelcome(m_ports.settings)) m_ports.welcome();
    m_fade->leave(
        [this] {
            hide();
            // The greeting is the end of the fade; without one nothing is said.
            if (m_shared.FadeActive) title::greet(m_ports.clock, m_ports.sounds);
            emit continued();
        },
        kSlowFadeStep);
}

bool frmTitlePage::event(QEvent* event) {
    // Behind the welcome, which is read in peace, the picture rests.
    if (event->type() == QEvent::WindowBlocked) m_picture->pause();
    if (event->type() == QEvent::WindowUnblocked) m_picture->resume();
    return QWidget::event(event);
}

void frmTitlePage::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    paintTitleGround(painter);
}

void frmTitlePage::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (!m_fade->takesClosing()) return;
    hide();
    emit closed();
}

}  // namespace skylob
