#include "players/qt/frmGetSkillLevel.h"

#include <QLabel>

#include "base/basSkylob.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtFormButtons.h"
#include "look/qt/QtLook.h"
#include "screen/qt/QtScreenFade.h"

namespace skylob {

namespace {

struct Level {
    int index;  ///< the skill level itself
    int left;
    const char* hint;
};

constexpr Level kLevels[] = {
    {6, 16, "Wide of the mark"}, {5, 170, "A fair match"}, {4, 324, "Deadly"}};
constexpr int kFair = 5;

QLabel* centredLabel(const QString& text, const char* role, const QRect& place, QWidget* parent) {
    auto* label = new QLabel{text, parent};
    label->setGeometry(place);
    label->setAlignment(Qt::AlignCenter);
    label->setProperty("role", QLatin1String{role});
    return label;
}

}  // namespace

frmGetSkillLevel::frmGetSkillLevel(basSkylob& shared, const SettingsStore& settings,
                                   const QtShapes& shapes)
    : m_shared{shared}, m_fade{new QtScreenFade{this, shared, settings}} {
    setWindowTitle(tr("Select a Skill Level for Your Computer"));
    applyLook(*this);
    setFixedSize(480, 208);
    centredLabel(tr("How well should the computer aim?"), "question", {16, 12, 448, 28}, this);
    QtFormButtons buttons{QStringLiteral("frmGetSkillLevel"), shapes, *this};
    for (const Level& level : kLevels) {
        auto* button = buttons.make(QStringLiteral("cmdSkillLevel(%1)").arg(level.index),
                                    {level.left, 52, 140, 124});
        connect(button, &GlintButton::Click, this,
                [this, index = level.index] { cmdSkillLevel_Click(index); });
        if (level.index == kFair) button->setFocus();
        centredLabel(tr(level.hint), "note", {level.left, 180, 140, 20}, this);
    }
    m_fade->load();
}

void frmGetSkillLevel::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    m_fade->activate();
}

void frmGetSkillLevel::cmdSkillLevel_Click(int index) {
    m_shared.SkillLevel = index;
    leave();
}

void frmGetSkillLevel::reject() {
    if (!m_fade->isFading()) leave();
}

void frmGetSkillLevel::leave() {
    m_fade->leave([this] { accept(); });
}

}  // namespace skylob
