#pragma once

#include "desktop/virtual_display.h"
#include "x11/x11.h"

#include <array>
#include <optional>
#include <set>

namespace velmora {

/// A client of an X server that reads the messages of other clients.
class X11Client {
public:
    explicit X11Client(const VirtualDisplay& display)
        : connection_(xcb_connect(qPrintable(display.name()), nullptr)),
          window_(xcb_generate_id(connection_)) {
        constexpr std::uint32_t overrideRedirect = 1;
        xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window_, root(), 0, 0, side, side, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
                          &overrideRedirect);
    }
    X11Client(const X11Client&) = delete;
    X11Client& operator=(const X11Client&) = delete;
    ~X11Client() { xcb_disconnect(connection_); }

protected:
    static constexpr std::uint16_t side = 32; ///< of the window, pixels

    xcb_window_t root() const { return X11::screen(connection_).root; }
    xcb_atom_t atom(const char* name) const { return X11::atom(connection_, name); }
    /// Waits for the next message of this type. All zero if none comes.
    xcb_client_message_data_t next(const char* type) {
        std::optional<xcb_client_message_data_t> data;
        waitUntil([&, wanted = atom(type)] {
            while (const X11::Owned<xcb_generic_event_t> event{data ? nullptr
                                                                    : xcb_poll_for_event(connection_)}) {
                const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(*event);
                if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE && message.type == wanted)
                    data = message.data;
            }
            return data.has_value();
        });
        return data.value_or(xcb_client_message_data_t{});
    }

    xcb_connection_t* const connection_;
    const xcb_window_t window_; ///< at the upper left of the screen, not yet mapped
};

/// Grabs the keyboard while it exists, as the menu of another program does.
class KeyboardGrab : public X11Client {
public:
    explicit KeyboardGrab(const VirtualDisplay& display) : X11Client(display) {
        const auto cookie = xcb_grab_keyboard(connection_, 0, root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC,
                                              XCB_GRAB_MODE_ASYNC);
        const X11::Owned<xcb_grab_keyboard_reply_t> reply(
            xcb_grab_keyboard_reply(connection_, cookie, nullptr));
        succeeded_ = reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
    }
    bool succeeded() const { return succeeded_; }

private:
    bool succeeded_ = false;
};

/// Says that it is a window manager, and notes which windows ask for the focus.
class FocusObserver : public X11Client {
public:
    explicit FocusObserver(const VirtualDisplay& display) : X11Client(display) {
        const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection_, root(), XCB_CW_EVENT_MASK, &events);
        xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, root(), atom("_NET_SUPPORTING_WM_CHECK"),
                            XCB_ATOM_WINDOW, 32, 1, &window_);
        xcb_flush(connection_);
    }

    /// The X server's current time.
    xcb_timestamp_t time() {
        xcb_change_property(connection_, XCB_PROP_MODE_APPEND, root(), XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                            0, nullptr);
        xcb_flush(connection_);
        xcb_timestamp_t found = 0;
        waitUntil([&] {
            while (const X11::Owned<xcb_generic_event_t> event{xcb_poll_for_event(connection_)})
                if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY)
                    found = reinterpret_cast<const xcb_property_notify_event_t&>(*event).time;
            return found != 0;
        });
        return found;
    }

    /// Waits for the next request and returns its time stamp; 0 if none comes.
    xcb_timestamp_t nextRequest() { return next("_NET_ACTIVE_WINDOW").data32[1]; }
    /// Waits for the next message to launchers and returns how it begins.
    QByteArray nextLauncherMessage() {
        const xcb_client_message_data_t data = next("_NET_STARTUP_INFO_BEGIN");
        return {reinterpret_cast<const char*>(data.data8), sizeof data.data8};
    }
};

/// A tray of the old kind, at the upper left of the screen. It embeds one icon.
class OldTray : public X11Client {
public:
    explicit OldTray(const VirtualDisplay& display) : X11Client(display) {
        xcb_map_window(connection_, window_);
        xcb_set_selection_owner(connection_, window_, atom("_NET_SYSTEM_TRAY_S0"), XCB_TIME_CURRENT_TIME);
        auto message = X11::message(root(), atom("MANAGER"));
        message.data.data32[1] = atom("_NET_SYSTEM_TRAY_S0");
        message.data.data32[2] = window_;
        X11::send(connection_, root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY, message);
        xcb_flush(connection_);
    }

    /// Waits for an icon that asks to be embedded, and shows it.
    bool embed() {
        const xcb_window_t icon = next("_NET_SYSTEM_TRAY_OPCODE").data32[2];
        constexpr std::array<std::uint32_t, 2> size{side, side};
        xcb_configure_window(connection_, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                             size.data());
        xcb_reparent_window(connection_, icon, window_, 0, 0);
        xcb_map_window(connection_, icon);
        return hasIcon();
    }
    bool hasIcon() const {
        const X11::Owned<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection_, xcb_query_tree(connection_, window_), nullptr));
        return tree && tree->children_len == 1;
    }
    /// How many colours the icon has.
    std::size_t colors() const {
        const auto cookie =
            xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, root(), 0, 0, side, side, ~0U);
        const X11::Owned<xcb_get_image_reply_t> image(xcb_get_image_reply(connection_, cookie, nullptr));
        if (!image)
            return 0;
        const auto* pixels = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get()));
        return std::set<std::uint32_t>(pixels, pixels + side * side).size();
    }
};

} // namespace velmora
