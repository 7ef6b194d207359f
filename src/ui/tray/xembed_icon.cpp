#include "ui/tray/xembed_icon.h"

#include "x11/x11.h"

#include <QCoreApplication>
#include <QCursor>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace velmora {

namespace {

constexpr int firstSide = 22;          // device pixels, until the tray sets a size
constexpr QSize largestSize(256, 256); // device pixels
constexpr std::uint8_t alphaDepth = 32;
constexpr std::uint8_t mouseLeft = 1, mouseRight = 3;

/// Ignores the error of a request for a window that another program may have destroyed.
void ignoreError(xcb_connection_t* connection, xcb_void_cookie_t cookie) {
    xcb_discard_reply(connection, cookie.sequence);
}

/// The visual that the tray asks for, if it has an alpha channel; XCB_NONE if it does not.
xcb_visualid_t alphaVisualOf(xcb_connection_t* connection, xcb_window_t tray) {
    const auto cookie = xcb_get_property(
        connection, 0, tray, X11::atom(connection, "_NET_SYSTEM_TRAY_VISUAL"), XCB_ATOM_VISUALID, 0, 1);
    const X11::Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply || xcb_get_property_value_length(reply.get()) != sizeof(xcb_visualid_t))
        return XCB_NONE;
    const xcb_visualid_t wanted = *static_cast<xcb_visualid_t*>(xcb_get_property_value(reply.get()));
    const xcb_screen_t& screen = X11::screen(connection);
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem > 0; xcb_depth_next(&depth))
        for (auto visual = xcb_depth_visuals_iterator(depth.data); visual.rem > 0;
             xcb_visualtype_next(&visual))
            if (depth.data->depth == alphaDepth && visual.data->visual_id == wanted)
                return wanted;
    return XCB_NONE;
}

/// The pixel format of images of this depth.
QImage::Format formatOf(std::uint8_t depth) {
    if (depth == alphaDepth)
        return QImage::Format_ARGB32_Premultiplied;
    return depth == 16 ? QImage::Format_RGB16 : QImage::Format_RGB32;
}

} // namespace

XEmbedIcon::XEmbedIcon()
    : connection_(X11::connection()),
      selection_(X11::atom(connection_, "_NET_SYSTEM_TRAY_S0")),
      manager_(X11::atom(connection_, "MANAGER")) {
    connect(&toolTipDelay_, &UiTimer::timeout, this,
            [this] { QToolTip::showText(QCursor::pos(), toolTip_); });
    QCoreApplication::instance()->installNativeEventFilter(this);
    dock();
}

XEmbedIcon::~XEmbedIcon() {
    QCoreApplication::instance()->removeNativeEventFilter(this);
    undock();
    xcb_flush(connection_);
}

void XEmbedIcon::setIcon(const QIcon& icon) {
    icon_ = icon;
    paint();
}

/// Asks the tray to embed the icon. Without a tray, the icon docks when the next one announces itself.
void XEmbedIcon::dock() {
    undock();
    tray_ = X11::ownerOf(connection_, selection_);
    if (tray_ == XCB_WINDOW_NONE)
        return;
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY; // for its end
    ignoreError(connection_,
                xcb_change_window_attributes_checked(connection_, tray_, XCB_CW_EVENT_MASK, &events));
    createWindow();
    auto request = X11::message(tray_, X11::atom(connection_, "_NET_SYSTEM_TRAY_OPCODE"));
    constexpr std::uint32_t requestDock = 0;
    request.data.data32[1] = requestDock;
    request.data.data32[2] = window_;
    X11::send(connection_, tray_, XCB_EVENT_MASK_NO_EVENT, request);
    xcb_flush(connection_);
}

void XEmbedIcon::undock() {
    hideToolTip();
    tray_ = 0;
    pressed_ = 0;
    if (const xcb_window_t window = std::exchange(window_, 0))
        ignoreError(connection_, xcb_destroy_window_checked(connection_, window));
    if (const xcb_colormap_t colormap = std::exchange(colormap_, 0))
        xcb_free_colormap(connection_, colormap);
}

/// Without an alpha channel, the window shows the tray's background.
void XEmbedIcon::createWindow() {
    const xcb_screen_t& screen = X11::screen(connection_);
    const xcb_visualid_t alpha = alphaVisualOf(connection_, tray_);
    depth_ = alpha ? alphaDepth : screen.root_depth;
    size_ = {firstSide, firstSide};
    xcb_create_window_value_list_t values{};
    std::uint32_t mask = XCB_CW_EVENT_MASK;
    values.event_mask = XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY |
                        XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                        XCB_EVENT_MASK_ENTER_WINDOW | XCB_EVENT_MASK_LEAVE_WINDOW;
    if (alpha) {
        mask |= XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_COLORMAP;
        values.colormap = colormap_ = xcb_generate_id(connection_);
        xcb_create_colormap(connection_, XCB_COLORMAP_ALLOC_NONE, colormap_, screen.root, alpha);
    } else {
        mask |= XCB_CW_BACK_PIXMAP;
        values.background_pixmap = XCB_BACK_PIXMAP_PARENT_RELATIVE;
    }
    window_ = xcb_generate_id(connection_);
    xcb_create_window_aux(connection_, depth_, window_, screen.root, 0, 0,
                          static_cast<std::uint16_t>(size_.width()),
                          static_cast<std::uint16_t>(size_.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          alpha ? alpha : screen.root_visual, mask, &values);
    setProperties();
}

/// The tray maps the window because of its XEmbed flag.
void XEmbedIcon::setProperties() const {
    constexpr std::uint32_t version = 0, mapped = 1;
    const std::array<std::uint32_t, 2> embedding{version, mapped};
    const xcb_atom_t info = X11::atom(connection_, "_XEMBED_INFO");
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_, info, info, 32, embedding.size(),
                        embedding.data());
    std::array<std::uint32_t, 18> hints{}; // WM_SIZE_HINTS: flags, and from the sixth value the smallest size
    constexpr std::uint32_t hasSmallestSize = 1 << 4;
    hints[0] = hasSmallestSize;
    hints[5] = hints[6] = std::uint32_t{firstSide};
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NORMAL_HINTS,
                        XCB_ATOM_WM_SIZE_HINTS, 32, hints.size(), hints.data());
    constexpr std::string_view name = "Velmora", instanceAndClass("velmora\0Velmora\0", 16);
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        name.size(), name.data());
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        instanceAndClass.size(), instanceAndClass.data());
}

bool XEmbedIcon::nativeEventFilter(const QByteArray&, void* event, qintptr*) {
    const auto type =
        static_cast<std::uint8_t>(static_cast<xcb_generic_event_t*>(event)->response_type & 0x7f);
    if (type == XCB_CLIENT_MESSAGE) {
        const auto& message = *static_cast<xcb_client_message_event_t*>(event);
        const auto& [time, selection, tray, first, second] = message.data.data32;
        if (message.type == manager_ && selection == selection_ && tray != tray_)
            dock();
    } else if (type == XCB_DESTROY_NOTIFY) {
        if (tray_ != 0 && static_cast<xcb_destroy_notify_event_t*>(event)->window == tray_)
            dock();
    } else if (window_ != 0) {
        handleOwn(type, event);
    }
    return false;
}

void XEmbedIcon::handleOwn(std::uint8_t type, const void* event) {
    switch (type) {
    case XCB_CONFIGURE_NOTIFY:
        if (const auto& change = *static_cast<const xcb_configure_notify_event_t*>(event);
            change.window == window_) {
            size_ = {change.width, change.height};
            paint();
        }
        break;
    case XCB_EXPOSE:
        if (static_cast<const xcb_expose_event_t*>(event)->window == window_)
            paint();
        break;
    case XCB_BUTTON_PRESS:
    case XCB_BUTTON_RELEASE:
        if (const auto& button = *static_cast<const xcb_button_press_event_t*>(event);
            button.event == window_)
            handleButton(type == XCB_BUTTON_PRESS, button.detail, button.time);
        break;
    case XCB_ENTER_NOTIFY:
    case XCB_LEAVE_NOTIFY:
        if (static_cast<const xcb_enter_notify_event_t*>(event)->event == window_) {
            hideToolTip();
            toolTipDelay_.setActive(type == XCB_ENTER_NOTIFY);
        }
        break;
    default:
        break;
    }
}

/// Acts on the release, when the X server lets the menu grab the pointer. The release of a press that closed
/// the menu counts for nothing.
void XEmbedIcon::handleButton(bool press, std::uint8_t button, std::uint32_t time) {
    hideToolTip();
    if (std::exchange(pressed_, press ? button : 0) != button || press)
        return;
    if (button == mouseLeft)
        emit clicked(time);
    else if (button == mouseRight)
        emit menuRequested();
}

void XEmbedIcon::hideToolTip() {
    toolTipDelay_.stop();
    QToolTip::hideText();
}

void XEmbedIcon::paint() const {
    if (window_ == 0 || size_.isEmpty())
        return;
    QImage image = background();
    const int side = std::min(image.width(), image.height());
    const QPixmap icon = icon_.pixmap(QSize(side, side), 1.0);
    QPainter painter(&image);
    painter.drawPixmap(
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, icon.size(), image.rect()).topLeft(), icon);
    painter.end();
    const xcb_gcontext_t context = xcb_generate_id(connection_);
    ignoreError(connection_, xcb_create_gc_checked(connection_, context, window_, 0, nullptr));
    ignoreError(connection_,
                xcb_put_image_checked(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window_, context,
                                      static_cast<std::uint16_t>(image.width()),
                                      static_cast<std::uint16_t>(image.height()), 0, 0, 0, depth_,
                                      static_cast<std::uint32_t>(image.sizeInBytes()), image.constBits()));
    ignoreError(connection_, xcb_free_gc_checked(connection_, context));
    xcb_flush(connection_);
}

/// Transparent, or what the tray shows behind the window.
QImage XEmbedIcon::background() const {
    QImage image(size_.boundedTo(largestSize), formatOf(depth_));
    image.fill(Qt::transparent);
    if (depth_ == alphaDepth)
        return image;
    ignoreError(connection_, xcb_clear_area_checked(connection_, 0, window_, 0, 0, 0, 0));
    const auto cookie = xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window_, 0, 0,
                                      static_cast<std::uint16_t>(image.width()),
                                      static_cast<std::uint16_t>(image.height()), ~0U);
    const X11::Owned<xcb_get_image_reply_t> reply(xcb_get_image_reply(connection_, cookie, nullptr));
    if (reply && xcb_get_image_data_length(reply.get()) == image.sizeInBytes())
        std::copy_n(xcb_get_image_data(reply.get()), image.sizeInBytes(), image.bits());
    return image;
}

} // namespace velmora
