#include "battle/qt/QtHints.h"

#include <QEvent>
#include <QScrollBar>
#include <algorithm>

#include "battle/qt/QtSidePanel.h"
#include "controls/qt/GlintButton.h"

namespace skylob {

namespace {

constexpr const char* kSeen = "HintsSeen";
constexpr int kGap = 4;

}  // namespace

QtHint::QtHint(const QString& name, const QString& text, QWidget* parent) : QLabel{text, parent} {
    setObjectName(name);
    setProperty("role", QStringLiteral("hint"));
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::NoFocus);
    ensurePolished();
    adjustSize();
}

bool QtHints::areWanted(const WindowStore& windows) {
    return windows.recall(kSeen, "0") != "1";
}

QtHints::QtHints(QtSidePanel* panel, GlintButton* shoot, QWidget* row, WindowStore& windows)
    : QObject{panel->window()}, m_shoot{shoot}, m_row{row} {
    windows.keep(kSeen, "1");
    QScrollBar* const speed = panel->scrollSpeed();
    QScrollBar* const angle = panel->scrollAngle();
    QtHint* const speedHint = add("hintSpeed", tr("1. Speed: arrow keys, or type it: 442"), panel);
    speedHint->move(panel->width() - speedHint->width() - kGap, kGap);
    connect(speed, &QScrollBar::valueChanged, speedHint, &QWidget::hide);

    QtHint* const angleHint = add("hintAngle", tr("2. Angle: 90 is straight up"), panel);
    const int below = angle->geometry().bottom() + kGap;
    const bool fitsBelow = below + angleHint->height() <= panel->height();
    angleHint->move(fitsBelow ? angle->x() : panel->width() - angleHint->width() - kGap,
                    fitsBelow ? below : angle->geometry().center().y() - angleHint->height() / 2);
    connect(angle, &QScrollBar::valueChanged, angleHint, &QWidget::hide);

    m_shootHint = add("hintShoot", tr("3. Shoot: click it, or press Alt+S"), shoot->parentWidget());
    placeAboveShoot();
    for (QWidget* moved : {static_cast<QWidget*>(shoot), row}) moved->installEventFilter(this);
    for (QtHint* hint : m_hints) {
        hint->raise();
        hint->show();
    }
}

QtHint* QtHints::add(const char* name, const QString& text, QWidget* parent) {
    auto* hint = new QtHint{QLatin1String{name}, text, parent};
    connect(hint, &QtHint::wasRead, this, &QtHints::end);
    m_hints.append(hint);
    return hint;
}

void QtHints::placeAboveShoot() {
    const int left = m_shoot->geometry().center().x() - m_shootHint->width() / 2;
    m_shootHint->move(std::max(left, m_row->x()),
                      m_row->geometry().center().y() - m_shootHint->height() / 2);
}

/// The other two are children of the panel and move with it.
bool QtHints::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Move) placeAboveShoot();
    return false;
}

void QtHints::end() {
    for (QtHint* hint : m_hints) hint->hide();
}

}  // namespace skylob
