#include "x11/x11.h"

#include <QGuiApplication>

#include <cstring>

namespace velmora::X11 {

xcb_connection_t* connection() {
    const auto* application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return application ? application->connection() : nullptr;
}

xcb_screen_t& screen(xcb_connection_t* connection) {
    return *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
}

xcb_atom_t atom(xcb_connection_t* connection, const char* name) {
    const auto length = static_cast<uint16_t>(std::strlen(name));
    const Owned<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, length, name), nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t ownerOf(xcb_connection_t* connection, xcb_atom_t selection) {
    const Owned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

/// A compositing manager owns this selection of the first screen.
bool isComposited() {
    xcb_connection_t* const server = connection();
    return !server || ownerOf(server, atom(server, "_NET_WM_CM_S0")) != XCB_WINDOW_NONE;
}

std::optional<std::bitset<256>> keysDown() {
    xcb_connection_t* const server = connection();
    if (!server)
        return std::nullopt;
    const Owned<xcb_query_keymap_reply_t> reply(
        xcb_query_keymap_reply(server, xcb_query_keymap(server), nullptr));
    if (!reply)
        return std::nullopt;
    std::bitset<256> keys;
    for (std::size_t code = 0; code < keys.size(); ++code)
        keys[code] = reply->keys[code / 8] >> code % 8 & 1;
    return keys;
}

xcb_client_message_event_t message(xcb_window_t window, xcb_atom_t type) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = type;
    return message;
}

void send(xcb_connection_t* connection, xcb_window_t to, uint32_t mask,
          const xcb_client_message_event_t& message) {
    const auto cookie =
        xcb_send_event_checked(connection, 0, to, mask, reinterpret_cast<const char*>(&message));
    xcb_discard_reply(connection, cookie.sequence);
}

} // namespace velmora::X11
