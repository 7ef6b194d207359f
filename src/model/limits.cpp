#include "model/limits.h"

#include "model/whole.h"

namespace velmora {

namespace {

constexpr double smallestSite = 1, largestSite = 100'000; // metres

/// The place of the first number in a value that does not fit; empty when all do.
template <class Value>
std::string misfit(const Value&) {
    return {};
}

std::string misfit(double number) {
    return fitsWhole(number) ? std::string() : std::string(": out of range");
}

template <Described Record>
std::string misfit(const Record& record);

template <class Item>
std::string misfit(const std::vector<Item>& items) {
    for (std::size_t i = 0; i < items.size(); ++i)
        if (const std::string found = misfit(items[i]); !found.empty())
            return '[' + std::to_string(i) + ']' + found;
    return {};
}

template <class Item>
std::string misfit(const std::optional<Item>& item) {
    return item ? misfit(*item) : std::string();
}

template <Described Record>
std::string misfit(const Record& record) {
    std::string found;
    forEachField<Record>([&](const auto& field) {
        if (!found.empty())
            return;
        const std::string place = misfit(record.*(field.member));
        if (!place.empty())
            found = '.' + std::string(field.name) + place;
    });
    return found;
}

template <Described Record>
std::string firstMisfit(const Record& record) {
    const std::string found = misfit(record);
    return found.empty() ? found : found.substr(1);
}

bool isDrawable(double metres) {
    return metres >= smallestSite && metres <= largestSite;
}

} // namespace

std::string unusableField(const Settings& settings) {
    return firstMisfit(settings);
}

std::string unusableField(const LiveState& state) {
    if (state.site.boundary.empty())
        return "site.boundary: expected at least one point";
    if (!isDrawable(state.site.size.x) || !isDrawable(state.site.size.y))
        return "site.size: expected 1 to 100000 metres";
    return firstMisfit(state);
}

} // namespace velmora
