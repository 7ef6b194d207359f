#pragma once

#include <cstddef>

namespace velmora {

/// Number of `operator new` calls since the program started.
std::size_t allocations();

} // namespace velmora
