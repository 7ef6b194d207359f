#include "store/link_status.h"

#include "language/language.h"

namespace velmora {

QString LinkStatus::text() const {
    switch (kind) {
    case Case::connected:
        return Words::tr("Linked to velmora %1").arg(payload);
    case Case::failed:
        return Words::tr("Can't reach velmora — %1").arg(payload);
    case Case::demo:
        return Words::tr("Demo mode");
    case Case::connecting:
        return Words::tr("Connecting…");
    }
    return {};
}

} // namespace velmora
