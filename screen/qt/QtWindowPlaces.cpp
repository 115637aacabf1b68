#include "screen/qt/QtWindowPlaces.h"

#include <QGuiApplication>
#include <QScreen>
#include <optional>
#include <vector>

#include "base/WindowStore.h"
#include "screen/WindowPlace.h"
#include "screen/qt/QtPlacement.h"
#include "screen/qt/QtScreen.h"

namespace skylob {

namespace {

QRect toRect(const DesktopArea& area) {
    return {area.x, area.y, area.width, area.height};
}

Qt::WindowStates toQt(WindowState state) {
    switch (state) {
        case WindowState::Maximised:
            return Qt::WindowMaximized;
        case WindowState::FullScreen:
            return Qt::WindowFullScreen;
        case WindowState::Normal:
            break;
    }
    return Qt::WindowNoState;
}

WindowState stateOf(const QWidget& window) {
    if (window.isFullScreen()) return WindowState::FullScreen;
    return window.windowState() & Qt::WindowMaximized ? WindowState::Maximised
                                                      : WindowState::Normal;
}

std::string keyOf(const QString& screenName) {
    return screenName.toStdString();
}

/// The remembered place, and whether it holds beside its size and state; the display for either.
struct Site {
    std::optional<WindowPlace> place;
    bool holds = false;
    QScreen* display;
};

Site siteOf(const QString& name, const WindowStore& windows, const QWidget* before,
            PlaceMemory memory) {
    Site site{placeOf(windows.recall(keyOf(name), "")), false, displayOf(before)};
    if (!site.place) return site;
    // The first one takes what is off all of them.
    QList<QScreen*> displays{site.display};
    displays += QGuiApplication::screens();
    std::vector<DesktopArea> areas;
    for (const QScreen* display : displays) areas.push_back(areaOf(display->geometry()));
    QScreen* const showing =
        displays.at(static_cast<qsizetype>(displayShowing(site.place->area, areas)));
    site.holds = memory == PlaceMemory::OnAnyDisplay || showing == site.display;
    if (site.holds) site.display = showing;
    return site;
}

}  // namespace

void keepPlace(const QtScreen& screen, WindowStore& windows) {
    const WindowState state = stateOf(screen);
    const QRect area = state == WindowState::Normal ? screen.geometry() : screen.normalGeometry();
    windows.keep(keyOf(screen.objectName()), toText({areaOf(area), state}));
}

void bringToPlace(QtScreen& screen, const WindowStore& windows, const QWidget* before,
                  PlaceMemory memory) {
    const Site site = siteOf(screen.objectName(), windows, before, memory);
    const QRect room = roomOn(*site.display, before);
    if (screen.mayGrow() && site.place) screen.resize(toRect(site.place->area).size());
    screen.fitInto(room.size());
    if (!site.holds) {
        centreOver(screen, before);
    } else {
        const QRect area{toRect(site.place->area).topLeft(), screen.size()};
        screen.setScreen(site.display);
        screen.setGeometry(toRect(broughtInto(areaOf(area), areaOf(room))));
    }
    if (site.place) screen.setWindowState(toQt(site.place->state));
}

void fitToDisplayOf(QtScreen& screen, const QWidget* before) {
    screen.fitInto(roomOn(*displayOf(before), before).size());
}

QSize roomForScreen(const QString& name, const WindowStore& windows, const QWidget* before,
                    PlaceMemory memory) {
    return roomOn(*siteOf(name, windows, before, memory).display, before).size();
}

}  // namespace skylob
