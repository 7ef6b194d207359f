#pragma once

#include <QString>
#include <cstdint>
#include <qwindowdefs.h>

/// Tokens that let a window take the focus from another program's. On X11 a token ends with "_TIME" and the X
/// server's time of the owner's action: a window manager gives the focus only if the owner has not used
/// another window since.
namespace velmora::Activation {

/// The launcher's token from the environment; empty if there is none. Call it before the application is
/// created, which removes it.
QString launcherToken();

/// A token for an action that the owner took at this time of the X server, milliseconds.
QString tokenOf(std::uint32_t time);

/// A token for an action that the owner takes now. Empty on platforms other than X11, where only the desktop
/// makes tokens. Never call it for an alert: an alert must not take the focus.
QString tokenOfNow();

/// X11: asks the window manager to raise the window and to give it the focus, as of the token's time, and
/// tells the launcher that the start has ended. Returns false if nothing was asked: on other platforms,
/// without a window manager, or if the token has no time. Qt then asks as of the last input that it knows.
bool activate(WId window, const QString& token);

} // namespace velmora::Activation
