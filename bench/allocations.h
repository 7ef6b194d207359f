#pragma once

#include <cstddef>

namespace velmora {

/// Number of allocations by `operator new` since the program began.
std::size_t allocations();

} // namespace velmora
