#include "players/qt/frmGetSkillLevel.h"

#include <QLabel>

#include "base/basSkylob.h"
#include "base/qt/QtSpokenWidget.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtFormButtons.h"

namespace skylob {

namespace {

struct Level {
    int index;  ///< the skill level itself
    int left;
    const char* hint;
};

constexpr Level kLevels[] = {{kPoorSkill, 16, "Wide of the mark"},
                             {kFairSkill, 170, "A fair match"},
                             {kGoodSkill, 324, "Deadly"}};

QLabel* centredLabel(const QString& text, const char* role, const QRect& place, QWidget* parent) {
    auto* label = new QLabel{text, parent};
    label->setGeometry(place);
    label->setAlignment(Qt::AlignCenter);
    label->setProperty("role", QLatin1String{role});
    return label;
}

}  // namespace

frmGetSkillLevel::frmGetSkillLevel(const QtScreenPorts& ports)
    : QtScreen{{.name = QStringLiteral("frmGetSkillLevel"),
                .caption = tr("Select a Skill Level for Your Computer"),
                .size = {480, 208},
                .type = Qt::Dialog},
               ports} {
    centredLabel(tr("How well should the computer aim?"), "question", {16, 12, 448, 28}, this);
    QtFormButtons buttons{objectName(), m_shapes, *this};
    for (const Level& level : kLevels) {
        auto* button = buttons.make(QStringLiteral("cmdSkillLevel(%1)").arg(level.index),
                                    {level.left, 52, 140, 124});
        connect(button, &GlintButton::Click, this,
                [this, index = level.index] { cmdSkillLevel_Click(index); });
        if (level.index == kFairSkill) button->setFocus();
        button->setAccessibleDescription(tr(level.hint));
        keepFromReaders(*centredLabel(tr(level.hint), "note", {level.left, 180, 140, 20}, this));
    }
}

void frmGetSkillLevel::cmdSkillLevel_Click(int index) {
    m_shared.SkillLevel = index;
    leave();
}

GlintButton* frmGetSkillLevel::primaryButton() const {
    return qobject_cast<GlintButton*>(focusWidget());
}

void frmGetSkillLevel::askedToClose() {
    leave();
}

}  // namespace skylob
