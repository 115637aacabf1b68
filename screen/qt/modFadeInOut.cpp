#include "screen/qt/modFadeInOut.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWidget>
#include <cstdlib>
#include <memory>
#include <string_view>

#include "base/Motion.h"
#include "base/Settings.h"
#include "screen/Fade.h"

namespace skylob {

namespace {

struct FreeReply {
    // xcb hands its replies over to be freed; this is what owns them.
    void operator()(void* reply) const { std::free(reply); }  // NOLINT(*-no-malloc)
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, FreeReply>;

/// Null on any other kind of display.
xcb_connection_t* x11Connection() {
    if (QGuiApplication::platformName() != QLatin1String{"xcb"}) return nullptr;
    const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

/// Without a compositing manager an X11 display takes opacities and does nothing with them.
bool hasCompositingManager(xcb_connection_t* display) {
    constexpr std::string_view name = "_NET_WM_CM_S0";
    const Owned<xcb_intern_atom_reply_t> atom{xcb_intern_atom_reply(
        display, xcb_intern_atom(display, 1, name.size(), name.data()), nullptr)};
    if (!atom || atom->atom == XCB_ATOM_NONE) return false;
    const Owned<xcb_get_selection_owner_reply_t> reply{xcb_get_selection_owner_reply(
        display, xcb_get_selection_owner(display, atom->atom), nullptr)};
    return reply && reply->owner != XCB_WINDOW_NONE;
}

}  // namespace

bool SetFormAlpha(QWidget& form, int alpha, FadeDemand demand, const SettingsStore& settings,
                  Motion motion) {
    if (motion == Motion::Reduced) return false;
    if (demand == FadeDemand::WhenEnabled && !settings::readFadeStatus(settings)) return false;
    xcb_connection_t* const display = x11Connection();
    if (!display || !hasCompositingManager(display)) return false;
    applyOpacity(form, alpha);
    return true;
}

void applyOpacity(QWidget& form, int alpha) {
    form.setWindowOpacity(static_cast<double>(alpha) / kOpaque);
    if (xcb_connection_t* const display = x11Connection()) xcb_flush(display);
}

}  // namespace skylob
