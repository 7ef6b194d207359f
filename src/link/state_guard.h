#pragma once

#include "model/live_state.h"

#include <QByteArray>
#include <QString>

#include <string>

namespace velmora {

/// Why a state that was read cannot be shown, such as "notices: more than 1000 entries"; empty when it can.
/// Beyond what the records refuse by themselves, a list or a text that would stall the screens is refused:
/// 10,000 points, 1,000 notices, 100 cameras, 1,000 bytes of text.
std::string troubleIn(const LiveState& state);

/// The server's version as it fits on one line of the sidebar: at most 40 characters, none of them unseen.
QString versionText(const QByteArray& header);

} // namespace velmora
