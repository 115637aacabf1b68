#include "battle/qt/QtOptionStrip.h"

#include <QCheckBox>
#include <QLabel>
#include <QScrollBar>

#include "base/Volume.h"
#include "base/qt/QtSpokenWidget.h"
#include "battle/qt/QtSidePanel.h"

namespace skylob {

QtOptionStrip::QtOptionStrip(const frmPlayGameLayout& layout, WindowStore& windows,
                             BattleOptions& options, QWidget* board)
    : QFrame{board}, m_windows{windows} {
    setObjectName(QStringLiteral("strip"));
    setSpokenRole(*this, QAccessible::Grouping);
    setAccessibleName(tr("Options"));
    makeGameSpeed(layout, board);
    chkSound = makeBox("chkSound", tr("S&ound"));
    makeVolume(layout);
    chkTrajectory = makeBox("chkTrajectory", tr("&Trajectory"));
    chkMeteors = makeBox("chkMeteors", tr("&Meteors"));
    chkLightning = makeBox("chkLightning", tr("&Lightning"));
    chkWind = makeBox("chkWind", {});
    setSpokenKey(*chkWind, Qt::ALT | Qt::Key_W);
    makeEffects();
    connectTo(options);
}

QCheckBox* QtOptionStrip::makeBox(const char* name, const QString& caption) {
    auto* box = new QCheckBox{caption, this};
    box->setObjectName(QLatin1String{name});
    return box;
}

void QtOptionStrip::makeGameSpeed(const frmPlayGameLayout& layout, QWidget* board) {
    QWidget* const parent = layout.gameSpeedInStrip ? this : board;
    labelGameSpeed = new QLabel{parent};
    labelGameSpeed->setObjectName(QStringLiteral("labelGameSpeed"));
    keepFromReaders(*labelGameSpeed);  // the bar tells it
    if (!layout.gameSpeedInStrip) labelGameSpeed->setAlignment(Qt::AlignCenter);
    scrollGameSpeed = makeScrollBar(QStringLiteral("scrollGameSpeed"), kGameSpeedRange,
                                    layout.scrollGameSpeed, parent);
    scrollGameSpeed->setAccessibleName(tr("Game speed"));
    setSpokenKey(*scrollGameSpeed, Qt::ALT | Qt::Key_G);
}

void QtOptionStrip::makeVolume(const frmPlayGameLayout& layout) {
    scrollVolume =
        makeScrollBar(QStringLiteral("scrollVolume"), kVolumeRange, layout.scrollVolume, this);
    scrollVolume->setAccessibleName(tr("Volume"));
    setSpokenKey(*scrollVolume, Qt::ALT | Qt::Key_V);
    // Quirk "blank at the ends": one on either side.
    scrollVolume->setToolTip(tr(" How loud sounds are "));
    scrollVolume->setValue(recallVolume(m_windows));
    connect(scrollVolume, &QScrollBar::valueChanged, this, &QtOptionStrip::volumeChosen);
}

void QtOptionStrip::makeEffects() {
    chkEffects = makeBox("chkEffects", tr("E&ffects"));
    chkEffects->setToolTip(tr(" Light over the battlefield "));
    chkEffects->setChecked(m_windows.recall(kEffectsKey, "1") != "0");
    connect(chkEffects, &QCheckBox::clicked, this, [this](bool ticked) {
        m_windows.keep(kEffectsKey, ticked ? "1" : "0");
        emit effectsChosen(ticked);
    });
}

void QtOptionStrip::connectTo(BattleOptions& options) {
    connect(scrollGameSpeed, &QScrollBar::valueChanged, this,
            [&options](int value) { options.setGameSpeed(value); });
    const auto onClick = [this, &options](QCheckBox* box, void (BattleOptions::*handler)(bool)) {
        connect(box, &QCheckBox::clicked, this,
                [&options, handler](bool ticked) { (options.*handler)(ticked); });
    };
    onClick(chkSound, &BattleOptions::chkSound_Click);
    onClick(chkTrajectory, &BattleOptions::chkTrajectory_Click);
    onClick(chkMeteors, &BattleOptions::chkMeteors_Click);
    onClick(chkLightning, &BattleOptions::chkLightning_Click);
    onClick(chkWind, &BattleOptions::chkWind_Click);
}

void QtOptionStrip::place(const frmPlayGameLayout& layout) {
    setGeometry(layout.strip);
    labelGameSpeed->setGeometry(layout.labelGameSpeed);
    scrollGameSpeed->setGeometry(layout.scrollGameSpeed);
    chkSound->setGeometry(layout.chkSound);
    scrollVolume->setGeometry(layout.scrollVolume);
    chkTrajectory->setGeometry(layout.chkTrajectory);
    chkMeteors->setGeometry(layout.chkMeteors);
    chkLightning->setGeometry(layout.chkLightning);
    chkWind->setGeometry(layout.chkWind);
    chkEffects->setGeometry(layout.chkEffects);
}

void QtOptionStrip::showPanel(const BattlePanel& panel) {
    labelGameSpeed->setText(QString::fromStdString(panel.labelGameSpeed));
    scrollGameSpeed->setValue(panel.scrollGameSpeed);
    chkSound->setChecked(panel.chkSound);
    chkTrajectory->setChecked(panel.chkTrajectory);
    chkMeteors->setChecked(panel.chkMeteors);
    chkLightning->setChecked(panel.chkLightning);
    chkWind->setChecked(panel.chkWind);
    setSpokenName(*chkWind, QString::fromStdString(panel.windInWords));
    chkWind->setText(QString::fromStdString(panel.chkWindCaption));
    for (QWidget* control : controls()) control->setEnabled(panel.commandsEnabled);
    scrollGameSpeed->setEnabled(panel.commandsEnabled || panel.isWatched);
    labelGameSpeed->setEnabled(scrollGameSpeed->isEnabled());
}

QList<QWidget*> QtOptionStrip::controls() const {
    return {scrollGameSpeed, chkSound,     scrollVolume, chkTrajectory,
            chkMeteors,      chkLightning, chkWind,      chkEffects};
}

bool QtOptionStrip::wantsEffects() const {
    return chkEffects->isChecked();
}

void QtOptionStrip::rememberVolume() const {
    keepVolume(m_windows, scrollVolume->value());
}

}  // namespace skylob
