#pragma once

#include "store/link_status.h"
#include "ui/look/tokens.h"

namespace velmora {

/// Colour of the dot that shows the link status.
inline QColor linkColor(const LinkStatus& status) {
    switch (status.kind) {
    case LinkStatus::Case::connecting:
        return SB::caution;
    case LinkStatus::Case::failed:
        return SB::alert;
    case LinkStatus::Case::connected:
    case LinkStatus::Case::demo:
        break;
    }
    return SB::dot;
}

} // namespace velmora
