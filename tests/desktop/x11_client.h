#pragma once

#include "desktop/virtual_display.h"
#include "desktop/x11.h"

#include <optional>

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

    /// Waits for the next request and returns its time stamp; 0 if none comes.
    xcb_timestamp_t nextRequest() { return next("_NET_ACTIVE_WINDOW").data32[1]; }
    /// Waits for the next message to launchers and returns how it begins.
    QByteArray nextLauncherMessage() {
        const xcb_client_message_data_t data = next("_NET_STARTUP_INFO_BEGIN");
        return {reinterpret_cast<const char*>(data.data8), sizeof data.data8};
    }
};

} // namespace velmora
