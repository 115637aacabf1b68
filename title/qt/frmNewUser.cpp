#include "title/qt/frmNewUser.h"

#include <QCheckBox>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QShortcut>

#include "base/qt/QtSpokenWidget.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtFormButtons.h"
#include "title/TitlePage.h"
#include "title/TitleScene.h"
#include "title/qt/QtTitlePicture.h"

namespace skylob {

namespace {

constexpr QRect kSky{0, 0, 600, 80};
constexpr QPoint kSkyOfTitle{20, 32};  ///< the part of the title's sky that is seen here

}  // namespace

frmNewUser::frmNewUser(const QtScreenPorts& ports, const std::string& overview)
    : QtScreen{{.name = QStringLiteral("frmNewUser"),
                .caption = QStringLiteral(" Skylob - New User Overview"),
                .size = {600, 448},
                .type = Qt::Dialog},
               ports} {
    auto* message = new QLabel{QString::fromStdString(title::welcomeMessage(overview)), this};
    message->setObjectName(QStringLiteral("labelMessage"));
    message->setGeometry(24, 96, 552, 272);
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    message->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* rule = new QFrame{this};
    rule->setObjectName(QStringLiteral("rule"));
    rule->setGeometry(24, 376, 552, 1);
    chkDontShow = new QCheckBox{tr("Don't show this screen again"), this};
    chkDontShow->setObjectName(QStringLiteral("chkDontShow"));
    chkDontShow->setGeometry(24, 396, 300, 28);
    auto* shortcut = new QShortcut{Qt::ALT | Qt::Key_D, this};
    setSpokenKey(*chkDontShow, shortcut->key());
    connect(shortcut, &QShortcut::activated, chkDontShow, &QCheckBox::click);
    cmdContinue = QtFormButtons{objectName(), m_shapes, *this}.make(QStringLiteral("cmdContinue"),
                                                                    {432, 388, 144, 44});
    connect(cmdContinue, &GlintButton::Click, this, &frmNewUser::cmdContinue_Click);
    QWidget::setTabOrder(cmdContinue, chkDontShow);
    cmdContinue->setFocus();
}

void frmNewUser::paintEvent(QPaintEvent* event) {
    QtScreen::paintEvent(event);
    if (!event->rect().intersects(kSky)) return;
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(kSky);
    painter.translate(-kSkyOfTitle);
    paintTitleBackdrop(painter, m_shapes);
    for (const TitleSpot& star : TitleScene{}.at(0)) paintTitleSpot(painter, star);
}

void frmNewUser::cmdContinue_Click() {
    if (chkDontShow->isChecked()) title::endWelcomes(m_settings);
    leave();
}

/// Quirk "only an answer counts": closed by its frame or with Esc, it saves nothing.
void frmNewUser::askedToClose() {
    leave();
}

}  // namespace skylob
