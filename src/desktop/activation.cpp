#include "desktop/activation.h"

#include "x11/x11.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>

namespace velmora::Activation {

namespace {

constexpr qsizetype longestToken = 1000; // characters; tokens come from other programs
constexpr uint32_t sourceIsApplication = 1;

std::optional<xcb_timestamp_t> timeOf(const QString& token) {
    const QString mark = QStringLiteral("_TIME");
    const qsizetype at = token.lastIndexOf(mark);
    if (at < 0 || token.size() > longestToken)
        return std::nullopt;
    const xcb_timestamp_t time = token.mid(at + mark.size()).toUInt();
    return time == XCB_TIME_CURRENT_TIME ? std::nullopt : std::optional(time);
}

/// The X server tells its time only in events, so change a property of a window of our own.
std::optional<xcb_timestamp_t> serverTime() {
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> own(xcb_connect(nullptr, nullptr),
                                                                           &xcb_disconnect);
    xcb_connection_t* const connection = own.get();
    if (xcb_connection_has_error(connection))
        return std::nullopt;
    const xcb_window_t window = xcb_generate_id(connection);
    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection, 0, window, X11::screen(connection).root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    xcb_change_property(connection, XCB_PROP_MODE_APPEND, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0,
                        nullptr);
    xcb_flush(connection);
    const X11::Owned<xcb_generic_event_t> event(xcb_wait_for_event(connection));
    if (!event || event->response_type != XCB_PROPERTY_NOTIFY)
        return std::nullopt;
    return reinterpret_cast<const xcb_property_notify_event_t&>(*event).time;
}

bool hasWindowManager(xcb_connection_t* connection) {
    const auto cookie =
        xcb_get_property(connection, 0, X11::screen(connection).root,
                         X11::atom(connection, "_NET_SUPPORTING_WM_CHECK"), XCB_ATOM_WINDOW, 0, 1);
    const X11::Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr));
    return reply && reply->value_len > 0;
}

/// Sends "remove" of the startup notification protocol: a text in pieces of 20 bytes with a final zero.
void endStartup(xcb_connection_t* connection, xcb_window_t window, QByteArray token) {
    const QByteArray text = "remove: ID=\"" + token.replace('\\', "\\\\").replace('"', "\\\"") + '"' + '\0';
    auto message = X11::message(window, X11::atom(connection, "_NET_STARTUP_INFO_BEGIN"));
    message.format = 8;
    constexpr qsizetype piece = sizeof message.data.data8;
    const xcb_atom_t next = X11::atom(connection, "_NET_STARTUP_INFO");
    for (qsizetype at = 0; at < text.size(); at += piece) {
        const QByteArray bytes = text.mid(at, piece).leftJustified(piece, '\0');
        std::ranges::copy(bytes, message.data.data8);
        X11::send(connection, X11::screen(connection).root, XCB_EVENT_MASK_PROPERTY_CHANGE, message);
        message.type = next;
    }
}

} // namespace

QString launcherToken() {
    const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qEnvironmentVariable("DESKTOP_STARTUP_ID") : token;
}

QString tokenOf(std::uint32_t time) {
    return QStringLiteral("velmora-%1_TIME%2").arg(QCoreApplication::applicationPid()).arg(time);
}

QString tokenOfNow() {
    const auto time = X11::connection() ? serverTime() : std::nullopt;
    return time ? tokenOf(*time) : QString();
}

bool activate(WId window, const QString& token) {
    xcb_connection_t* const connection = X11::connection();
    const auto time = timeOf(token);
    if (!connection || !time || !hasWindowManager(connection))
        return false;
    const auto id = static_cast<xcb_window_t>(window);
    auto message = X11::message(id, X11::atom(connection, "_NET_ACTIVE_WINDOW"));
    message.data.data32[0] = sourceIsApplication;
    message.data.data32[1] = *time;
    X11::send(connection, X11::screen(connection).root,
              XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, message);
    endStartup(connection, id, token.toUtf8());
    xcb_flush(connection);
    return true;
}

} // namespace velmora::Activation
