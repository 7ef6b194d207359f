#include "store/link_status.h"

namespace velmora {

QString LinkStatus::text() const {
    switch (kind) {
    case Case::connected:
        return QStringLiteral("Linked to velmora ") + payload;
    case Case::failed:
        return QStringLiteral("Can't reach velmora — ") + payload;
    case Case::demo:
        return QStringLiteral("Demo mode");
    case Case::connecting:
        return QStringLiteral("Connecting…");
    }
    return {};
}

} // namespace velmora
