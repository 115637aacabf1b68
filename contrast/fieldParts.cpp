#include "fieldParts.h"

#include "battle/light/GunPose.h"
#include "tests/support/BattleScreen.h"

namespace skylob {

namespace {

const QString kField = QStringLiteral(", field");

QImage pictureOf(test::Screen& screen) {
    return screen.field()->grab().toImage();
}

QRect square(QPointF middle, int edge) {
    return QRectF{middle - QPointF{edge / 2.0, edge / 2.0}, QSizeF(edge, edge)}.toAlignedRect();
}

QPointF middleOf(const test::Screen& screen, FieldPoint at) {
    const PixelRect dot = screen.form->battle().picture().dotArea(at.x, at.y);
    return {dot.x + dot.width / 2.0, dot.y + dot.height / 2.0};
}

Part mark(const char* name, const QRect& place) {
    return {PartKind::Mark, QLatin1String{name}, place};
}

void lookAtTurn(Tour& tour, test::Screen& screen, const QString& place) {
    const Battle& battle = screen.form->battle();
    const int side = battle.state().turnNotice.side;
    const QString state = QStringLiteral("turn of side %1").arg(side);
    const PixelRect gun = battle.picture().pieceArea(side);
    const GunScale scale = gunScale(gun.width, gun.height);
    const QPointF sign{gun.x + kTurnSignX * scale.x, gun.y + kTurnSignY * scale.y};
    const QImage picture = pictureOf(screen);
    tour.add(place + kField, state,
             mark("turn sign", square(sign, qRound(kTurnSignSize * scale.barrel) + 4)), picture);
    if (const auto& at = battle.scene().lastLanding[side])
        tour.add(place + kField, state,
                 mark("ghost mark", square(middleOf(screen, *at) - QPointF{0, 14}, 15)), picture);
    tour.look(*screen.form, place, state);
}

/// Before a shell has left its gun far behind and when it is over the sky.
void lookAtFlight(Tour& tour, test::Screen& screen, const QString& place) {
    const auto& flight = screen.form->battle().scene().flight;
    if (!flight.inTheAir || flight.path.size() != 30) return;
    tour.add(place + kField, QStringLiteral("in flight"),
             mark("shell's glow", square(middleOf(screen, flight.path.back()), 20)),
             pictureOf(screen));
    tour.look(*screen.form, place, QStringLiteral("in flight, side %1").arg(flight.side));
}

void lookAtDrag(Tour& tour, test::Screen& screen, const QString& place) {
    const Battle& battle = screen.form->battle();
    const PixelRect gun = battle.picture().pieceArea(battle.state().Shooter);
    const QPoint from{gun.x + gun.width / 2, gun.y + gun.height / 2};
    const QPoint to = from + QPoint{gun.x < screen.field()->width() / 2 ? 120 : -120, -160};
    QTest::mousePress(screen.field(), Qt::LeftButton, {}, from);
    for (const QPoint& at : {from, to}) {
        QMouseEvent move{
            QEvent::MouseMove, at, screen.field()->mapToGlobal(QPointF{at}), Qt::NoButton,
            Qt::LeftButton,    {}};
        QCoreApplication::sendEvent(screen.field(), &move);
    }
    const QString state = QStringLiteral("dragging");
    const QImage picture = pictureOf(screen);
    tour.add(place + kField, state, mark("drag line", square((from + to) / 2.0, 20)), picture);
    tour.add(place + kField, state,
             {PartKind::Text, QStringLiteral("drag's figures"),
              QRect{to + QPoint{-30, -27}, QSize{60, 14}}},
             picture);
    tour.look(*screen.form, place, state);
    QTest::keyClick(screen.form.get(), Qt::Key_Escape);
    QTest::mouseRelease(screen.field(), Qt::LeftButton, {}, from);
}

}  // namespace

void playAndLook(Tour& tour, test::Screen& screen, const QString& place) {
    screen.pacer.duringFlight = [&] { lookAtFlight(tour, screen, place); };
    for (int turn = 1; turn <= 4; ++turn) {
        lookAtTurn(tour, screen, place);
        if (turn <= 2) lookAtDrag(tour, screen, place);
        QTest::mouseClick(screen.shoot(), Qt::LeftButton);
    }
    screen.pacer.duringFlight = {};
}

}  // namespace skylob
