#pragma once

#include "ui/look/ui_clock.h"

#include <QAbstractNativeEventFilter>
#include <QIcon>
#include <QImage>
#include <QObject>
#include <QSize>

struct xcb_connection_t;

namespace velmora {

/// An icon in an X11 tray of the old kind, which docks windows by the XEmbed protocol. The icon appears in
/// every tray that starts, and works without one. Create it only on X11.
class XEmbedIcon : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    XEmbedIcon();
    ~XEmbedIcon() override;

    void setIcon(const QIcon& icon);
    void setToolTip(const QString& text) { toolTip_ = text; }

signals:
    /// `time` is the X server's, in milliseconds.
    void clicked(std::uint32_t time);
    /// The menu should open at the pointer.
    void menuRequested();

private:
    bool nativeEventFilter(const QByteArray& type, void* event, qintptr* result) override;
    void handleOwn(std::uint8_t type, const void* event);
    void handleButton(bool press, std::uint8_t button, std::uint32_t time);
    void dock();
    void undock();
    void createWindow();
    void setProperties() const;
    void hideToolTip();
    void paint() const;
    QImage background() const;

    xcb_connection_t* const connection_;
    const std::uint32_t selection_; ///< the atom whose owner is the tray
    const std::uint32_t manager_;   ///< the atom of a new tray's message
    std::uint32_t tray_ = 0;        ///< its window; 0 without a tray
    std::uint32_t window_ = 0;      ///< ours, in the tray; 0 without a tray
    std::uint32_t colormap_ = 0;    ///< of our window if it has an alpha channel
    std::uint8_t depth_ = 0;        ///< of our window, bits
    QSize size_;                    ///< of our window, device pixels
    std::uint8_t pressed_ = 0;      ///< the mouse button held down since a press on the icon
    QIcon icon_;
    QString toolTip_;
    UiTimer toolTipDelay_{std::chrono::milliseconds(700), UiTimer::Mode::singleShot};
};

} // namespace velmora
