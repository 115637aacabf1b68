#include "title/qt/frmNewUser.h"

#include <QCheckBox>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QShortcut>

#include "controls/qt/GlintButton.h"
#include "controls/qt/QtFormButtons.h"
#include "look/qt/QtLook.h"
#include "screen/qt/QtScreenFade.h"
#include "title/TitlePage.h"
#include "title/TitleScene.h"
#include "title/qt/QtTitlePicture.h"

namespace skylob {

namespace {

constexpr QRect kSky{0, 0, 600, 80};
constexpr QPoint kSkyOfTitle{20, 32};  ///< the part of the title's sky that is seen here

}  // namespace

frmNewUser::frmNewUser(basSkylob& shared, const std::string& overview, SettingsStore& settings,
                       const QtShapes& shapes)
    : m_settings{settings}, m_shapes{shapes}, m_fade{new QtScreenFade{this, shared, settings}} {
    setWindowTitle(QStringLiteral(" Skylob - New User Overview"));
    applyLook(*this);
    setFixedSize(600, 448);
    auto* message = new QLabel{QString::fromStdString(title::welcomeMessage(overview)), this};
    message->setGeometry(24, 96, 552, 272);
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    message->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* rule = new QFrame{this};
    rule->setObjectName(QStringLiteral("rule"));
    rule->setGeometry(24, 376, 552, 1);
    chkDontShow = new QCheckBox{tr("Don't show this screen again"), this};
    chkDontShow->setGeometry(24, 396, 300, 28);
    auto* shortcut = new QShortcut{Qt::ALT | Qt::Key_D, this};
    connect(shortcut, &QShortcut::activated, chkDontShow, &QCheckBox::click);
    auto* cmdContinue = QtFormButtons{QStringLiteral("frmNewUser"), shapes, *this}.make(
        QStringLiteral("cmdContinue"), {432, 388, 144, 44});
    connect(cmdContinue, &GlintButton::Click, this, &frmNewUser::cmdContinue_Click);
    QWidget::setTabOrder(cmdContinue, chkDontShow);
    cmdContinue->setFocus();
    m_fade->load();
}

void frmNewUser::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    m_fade->activate();
}

void frmNewUser::paintEvent(QPaintEvent* event) {
    QDialog::paintEvent(event);
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

/// Closed by its frame or with Esc, it saves nothing.
void frmNewUser::reject() {
    if (!m_fade->isFading()) leave();
}

void frmNewUser::leave() {
    m_fade->leave([this] { accept(); });
}

}  // namespace skylob
