#include "model/settings.h"

namespace velmora {

std::string defaultHost() {
    return VELMORA_DEFAULT_HOST;
}

} // namespace velmora
