#include "ui/screens/grounds.h"

namespace velmora {

const LiveState& groundsFor(const AppStore& store) {
    static const LiveState demo = LiveState::initial();
    return store.knownState() ? *store.knownState() : demo;
}

} // namespace velmora
