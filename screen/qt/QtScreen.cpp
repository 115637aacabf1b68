#include "screen/qt/QtScreen.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWindow>
#include <utility>

#include "base/qt/QtInput.h"
#include "base/qt/QtSpokenWidget.h"
#include "controls/qt/GlintButton.h"
#include "look/qt/QtLook.h"
#include "screen/qt/QtPlacement.h"
#include "screen/qt/QtScreenFade.h"
#include "screen/qt/QtScrollBoard.h"
#include "screen/qt/QtWindowPlaces.h"

namespace skylob {

namespace {

/// Whether it is modal may be told the screen after the toolkit has made this.
class ScreenAccessible : public QtSpokenWidget {
  public:
    explicit ScreenAccessible(QtScreen* screen) : QtSpokenWidget{screen, QAccessible::Window} {}

    QAccessible::Role role() const override {
        return widget()->isModal() ? QAccessible::Dialog : QtSpokenWidget::role();
    }
};

QAccessibleInterface* makeScreenAccessible(const QString&, QObject* object) {
    auto* screen = qobject_cast<QtScreen*>(object);
    return screen ? new ScreenAccessible{screen} : nullptr;
}

}  // namespace

QtScreen::QtScreen(const QtScreenDesign& design, const QtScreenPorts& ports)
    : QWidget{nullptr, design.type},
      m_shared{ports.shared},
      m_settings{ports.settings},
      m_shapes{ports.shapes},
      m_windows{ports.windows},
      m_fade{new QtScreenFade{this, ports.shared, ports.settings}},
      m_smallest{design.size},
      m_mayGrow{design.mayGrow} {
    setObjectName(design.name);
    setWindowTitle(design.caption);
    applyLook(*this);
    if (design.mayGrow) {
        setMinimumSize(design.size);
        resize(design.size);
        m_scroll = new QtScrollBoard{design.size, this};
        connect(m_scroll, &QtScrollBoard::boardResized, this, [this] { boardResized(); });
    } else {
        setFixedSize(design.size);
    }
    if (design.type == Qt::Dialog) setWindowModality(Qt::ApplicationModal);
    if (design.fadesIn) m_fade->load();
}

QWidget* QtScreen::board() const {
    return m_scroll->board();
}

void QtScreen::bringIntoView(QWidget* widget) {
    m_scroll->ensureWidgetVisible(widget, 0, 0);
}

void QtScreen::bringIntoView(const QWidget& widget, const QPoint& place) {
    constexpr QMargins kRoom{120, 120, 120, 120};
    const QRect around = widget.rect() & QRect{place, QSize{1, 1}}.marginsAdded(kRoom);
    const QPoint middle = widget.mapTo(board(), around.center());
    m_scroll->ensureVisible(middle.x(), middle.y(), around.width() / 2, around.height() / 2);
}

void QtScreen::fitInto(const QSize& room) {
    if (m_smallest.boundedTo(room) != m_smallest && !m_scroll) scrollItsWidgets();
    if (!m_scroll) return;
    const QSize fitting = smallestWithBars(room).boundedTo(room);
    if (!mayGrow()) return setFixedSize(fitting);
    setMinimumSize(m_smallest.boundedTo(room));
    if (!(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
        resize(size().expandedTo(fitting).boundedTo(room));
}

/// The bar that scrolls in one direction takes something of the other. Where logical pixels are no
/// whole ones of the display, windows get up to one less than they ask for.
QSize QtScreen::smallestWithBars(const QSize& room) const {
    QSize size = m_smallest;
    if (m_smallest.height() > room.height())
        size += QSize{m_scroll->verticalScrollBar()->sizeHint().width() + 1, 0};
    if (m_smallest.width() > room.width())
        size += QSize{0, m_scroll->horizontalScrollBar()->sizeHint().height() + 1};
    return size;
}

void QtScreen::scrollItsWidgets() {
    QWidget* const focused = focusWidget();
    const auto widgets = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    m_scroll = new QtScrollBoard{m_smallest, this};
    board()->installEventFilter(this);
    for (QWidget* widget : widgets) {
        if (widget->isWindow()) continue;
        const QPoint place = widget->pos();
        const bool wasSeen = widget->isVisible();
        widget->setParent(board());
        widget->move(place);  // and not its size, which may come only when it is shown
        if (wasSeen) widget->show();
    }
    if (isVisible()) m_scroll->show();
    if (focused) focused->setFocus();
}

void QtScreen::fitToDisplay() {
    fitInto(roomOn(*screen(), this).size());
}

void QtScreen::installAccessible() {
    QAccessible::installFactory(makeScreenAccessible);
}

void QtScreen::showModal(const QWidget* above) {
    setWindowModality(Qt::ApplicationModal);
    keepAbove(*this, above);
    QEventLoop loop;
    const QScopedValueRollback waiting{m_modalLoop, &loop};
    show();
    loop.exec(QEventLoop::DialogExec);
}

bool QtScreen::mayClose() const {
    return !m_fade->isFading() && !m_leaving;
}

bool QtScreen::beginLeaving() {
    return !std::exchange(m_leaving, true);
}

void QtScreen::finishLeaving(std::function<void()> next, int step) {
    if (mayGrow()) keepPlace(*this, m_windows);
    m_fade->fadeOut(
        [this, next = std::move(next)] {
            hide();
            if (next) next();
        },
        step);
}

void QtScreen::leave(std::function<void()> next, int step) {
    if (beginLeaving()) finishLeaving(std::move(next), step);
}

void QtScreen::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    connect(windowHandle(), &QWindow::screenChanged, this, &QtScreen::fitToDisplay,
            Qt::UniqueConnection);
    if (std::exchange(m_activated, true)) return;
    m_fade->fadeIn();
    Form_Activate();
}

void QtScreen::paintEvent(QPaintEvent* event) {
    if (m_scroll) return;
    QPainter painter{this};
    paintGround(painter, event->rect());
}

bool QtScreen::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint && watched == board()) {
        QPainter painter{board()};
        paintGround(painter, static_cast<QPaintEvent*>(event)->rect());
    }
    return QWidget::eventFilter(watched, event);
}

void QtScreen::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    // A window that the user puts aside is hidden, too, but not by the program.
    if (m_modalLoop && !event->spontaneous()) m_modalLoop->quit();
}

void QtScreen::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (mayClose()) askedToClose();
}

void QtScreen::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event)) {
        GlintButton* const button = primaryButton();
        if (button && button->isEnabled()) button->press();
        return;
    }
    if (!isModal() || !event->matches(QKeySequence::Cancel)) return QWidget::keyPressEvent(event);
    if (mayClose()) askedToClose();
}

}  // namespace skylob
