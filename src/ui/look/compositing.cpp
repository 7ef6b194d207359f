#include "ui/look/compositing.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace velmora {

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); } // as XCB's replies need
};
template <class Reply>
using Owned = std::unique_ptr<Reply, Free>;

} // namespace

/// A compositing manager owns this selection.
bool isComposited() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11)
        return true;
    constexpr std::string_view selection = "_NET_WM_CM_S0"; // of the first screen
    xcb_connection_t* server = x11->connection();
    const Owned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        server, xcb_intern_atom(server, true, selection.size(), selection.data()), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const Owned<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(server, xcb_get_selection_owner(server, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace velmora
