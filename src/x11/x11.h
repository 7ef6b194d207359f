#pragma once

#include <bitset>
#include <cstdlib>
#include <memory>
#include <optional>
#include <xcb/xcb.h>

namespace velmora::X11 {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
/// A reply or an event of libxcb, which allocates them with malloc.
template <class Type>
using Owned = std::unique_ptr<Type, Free>;

/// Qt's connection to the X server; null on other platforms.
xcb_connection_t* connection();

/// The first screen of the X server.
xcb_screen_t& screen(xcb_connection_t* connection);

/// Waits for the server's reply; XCB_ATOM_NONE if the connection is broken.
xcb_atom_t atom(xcb_connection_t* connection, const char* name);

/// The window that owns the selection; XCB_WINDOW_NONE if no program does.
xcb_window_t ownerOf(xcb_connection_t* connection, xcb_atom_t selection);

/// Whether windows may be translucent: a compositing manager runs, or the platform is not X11.
bool isComposited();

/// The keys that are down, by key code; nullopt if the platform is not X11.
std::optional<std::bitset<256>> keysDown();

/// A message of 32-bit values, to be filled in.
xcb_client_message_event_t message(xcb_window_t window, xcb_atom_t type);

/// Sends the message to the clients that selected `mask` on the window; to its owner if `mask` is 0. An error
/// is ignored.
void send(xcb_connection_t* connection, xcb_window_t to, uint32_t mask,
          const xcb_client_message_event_t& message);

} // namespace velmora::X11
