#include "players/qt/frmSummary.h"

#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QTimer>

#include "base/qt/QtSpokenWidget.h"
#include "controls/qt/GlintButton.h"
#include "controls/qt/QtFormButtons.h"
#include "look/qt/QtColour.h"
#include "look/qt/QtLook.h"
#include "look/qt/QtShapes.h"
#include "players/SetResult.h"
#include "screen/qt/QtSideFrame.h"

namespace skylob {

namespace {

constexpr int kMinute = 60'000;
constexpr PerSide<int> kFrameLeft{16, 308};
constexpr int kFrameWidth = 276;
constexpr QSize kFace{54, 54};
constexpr QPoint kFaceOfBubble{-72, 12}, kTipOfBubble{-12, 39};  // from its corner
constexpr int kBubbleTipHalf = 8;
constexpr int kSmallReason = 12;

/// What stands below what: a set's frames have a row more.
struct Rows {
    int heading, date, frames, frameHeight, reason, bubble, bubbleHeight;
};
constexpr Rows kOfARound{16, 52, 84, 140, 231, 260, 104};
constexpr Rows kOfASet{12, 46, 72, 172, 249, 275, 92};

constexpr const Rows& rowsOf(SummaryKind kind) {
    return kind == SummaryKind::Round ? kOfARound : kOfASet;
}

QRect bubbleOf(SummaryKind kind) {
    return {88, rowsOf(kind).bubble, 496, rowsOf(kind).bubbleHeight};
}

QLabel* makeLabel(const QRect& place, const char* role, QWidget* parent) {
    auto* label = new QLabel{parent};
    label->setGeometry(place);
    label->setTextFormat(Qt::PlainText);
    label->setProperty("role", QLatin1String{role});
    return label;
}

/// Readers hear it with its figure.
void addCaption(const QRect& place, const QString& text, QtSideFrame& frame) {
    QLabel* const caption = makeLabel(place, "caption", &frame);
    caption->setText(text);
    keepFromReaders(*caption);
}

/// A row of a caption and a figure. Returns the figure's label.
QLabel* addRow(QtSideFrame& frame, int top, const QString& text, const char* name, int number) {
    constexpr int kFigureHeight = 28;
    addCaption({12, top, 190, kFigureHeight}, text, frame);
    auto* figure = makeLabel({204, top, 60, kFigureHeight}, "figure", &frame);
    figure->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String{name}).arg(frame.side()));
    figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    figure->setText(QString::number(number));
    figure->setAccessibleName(QStringLiteral("%1: %2").arg(text).arg(number));
    return figure;
}

/// The row of a set's score.
void addReckoning(QtSideFrame& frame, int top, const QString& reckoning) {
    addCaption({12, top, 60, 28}, QObject::tr("Score"), frame);
    auto* score = makeLabel({72, top, 192, 28}, "men", &frame);
    score->setObjectName(QStringLiteral("labelSetScore(%1)").arg(frame.side()));
    score->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    score->setText(reckoning);
    score->setAccessibleName(QObject::tr("Score: %1").arg(reckoning));
    score->setToolTip(QObject::tr("7 for each round won, 1 for every 3 enemy killed this set"));
}

void addRule(QtSideFrame& frame, int top) {
    auto* rule = new QFrame{&frame};
    rule->setObjectName(QStringLiteral("rule"));
    rule->setGeometry(12, top, 252, 1);
}

}  // namespace

frmSummary::frmSummary(const QtScreenPorts& ports, SummaryKind kind, const SummaryPorts& rules)
    : QtScreen{{.name = QStringLiteral("frmSummary"),
                .caption = kind == SummaryKind::Round ? QStringLiteral(" Skylob - Round Summary")
                                                      : QStringLiteral(" Skylob - Set Summary"),
                .size = {600, 444},
                .type = Qt::Dialog},
               ports},
      m_kind{kind},
      m_summary{m_shared, kind, rules},
      label{makeLabel({16, rowsOf(kind).heading, 568, 36}, "heading", this)},
      labelDateTime{makeLabel({16, rowsOf(kind).date, 568, 20}, "note", this)},
      labelReason{makeLabel({16, rowsOf(kind).reason, 568, 20}, "reason", this)} {
    label->setObjectName(QStringLiteral("label"));
    labelDateTime->setObjectName(QStringLiteral("labelDateTime"));
    labelReason->setObjectName(QStringLiteral("labelReason"));
    for (QLabel* line : {label, labelDateTime, labelReason}) line->setAlignment(Qt::AlignCenter);
    makeFrames();
    makeBubble();
    makeOkay();
    auto* timerDateTime = new QTimer{this};
    connect(timerDateTime, &QTimer::timeout, this, &frmSummary::timerDateTime_Timer);
    timerDateTime->start(kMinute);
}

void frmSummary::makeFrames() {
    for (const int side : kSides) {
        frame[side] = new QtSideFrame{side, this};
        QtSideFrame& box = *frame[side];
        box.setObjectName(QStringLiteral("frame(%1)").arg(side));
        box.setGeometry(kFrameLeft[side], rowsOf(m_kind).frames, kFrameWidth,
                        rowsOf(m_kind).frameHeight);
        box.setCaption(QString::fromStdString(m_shared.PlayerName[side]));
        box.setBadge(QtSideFrame::Badge::Filled);
        labelRoundsWon[side] =
            addRow(box, 36, tr("Rounds won"), "labelRoundsWon", m_shared.RoundsWon[side]);
        addRule(box, 66);
        labelKills[side] =
            addRow(box, 68, tr("Enemy killed this round"), "labelKills", m_shared.RoundKills[side]);
        addRule(box, 98);
        labelTotalKills[side] = addRow(box, 100, tr("Enemy killed this set"), "labelTotalKills",
                                       m_shared.TotalKills[side]);
        if (m_kind == SummaryKind::Round) continue;
        addRule(box, 130);
        addReckoning(box, 134, QString::fromStdString(setReckoning(m_shared, side)));
    }
}

void frmSummary::makeBubble() {
    auto* bubble = new QFrame{this};
    bubble->setObjectName(QStringLiteral("bubble"));
    bubble->setGeometry(bubbleOf(m_kind));
    makeLabel({16, 10, 464, 20}, "note", bubble)->setText(tr("The computer says:"));
    labelComputerSays = makeLabel({16, 32, 464, 58}, "remark", bubble);
    labelComputerSays->setObjectName(QStringLiteral("labelComputerSays"));
    labelComputerSays->setWordWrap(true);
    labelComputerSays->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void frmSummary::makeOkay() {
    cmdOkay = QtFormButtons{objectName(), m_shapes, *this}.make(QStringLiteral("cmdOkay"),
                                                                {228, 376, 144, 52});
    cmdOkay->setFocus();
    connect(cmdOkay, &GlintButton::Click, this, &frmSummary::cmdOkay_Click);
}

void frmSummary::Form_Activate() {
    m_summary.Form_Activate();
    for (const int side : kSides) frame[side]->setTurn(side == m_shared.Winner);
    const QString heading = QString::fromStdString(m_summary.heading());
    showFitting(*label, heading, {kHeadingSize, kLargeSize});
    label->setAccessibleName(heading);
    const QString reason = QString::fromStdString(m_summary.reason());
    showFitting(*labelReason, reason, {kTextSize, kSmallReason});
    labelReason->setAccessibleName(reason);
    labelComputerSays->setText(QString::fromStdString(m_summary.labelComputerSays()));
    timerDateTime_Timer();
}

void frmSummary::timerDateTime_Timer() {
    labelDateTime->setText(QString::fromStdString(m_summary.labelDateTime()));
}

void frmSummary::paintGround(QPainter& painter, const QRect&) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QPoint corner = bubbleOf(m_kind).topLeft(), tip = corner + kTipOfBubble;
    m_shapes.paint(painter, QStringLiteral("face"), {corner + kFaceOfBubble, kFace},
                   QtShapes::Edges::Smooth);
    painter.setPen(toQColor(themeColour("line")));
    painter.setBrush(toQColor(themeColour("raised")));
    const QPointF root{corner.x() + 2.0, tip.y() + 0.0};
    painter.drawPolygon(
        QPolygonF{{root - QPointF{0, kBubbleTipHalf}, tip, root + QPointF{0, kBubbleTipHalf}}});
}

void frmSummary::cmdOkay_Click() {
    // At once: recording shows a box, which serves events.
    if (!beginLeaving()) return;
    m_summary.cmdOkay_Click();
    finishLeaving();
}

void frmSummary::askedToClose() {
    cmdOkay_Click();
}

}  // namespace skylob
