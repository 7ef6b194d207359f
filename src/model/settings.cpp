#include "model/settings.h"

#include "model/whole.h"

#include <type_traits>

namespace velmora {

std::string defaultHost() {
    return VELMORA_DEFAULT_HOST;
}

std::string unusableField(const Settings& settings) {
    std::string found;
    forEachField<Settings>([&](const auto& field) {
        const auto& value = settings.*(field.member);
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(value)>, double>)
            if (found.empty() && !fitsWhole(value))
                found = std::string(field.name) + ": out of range";
    });
    return found;
}

} // namespace velmora
