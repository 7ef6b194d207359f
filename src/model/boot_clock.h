#pragma once

#include <chrono>
#include <ctime>

namespace velmora {

/// Time since boot, including suspend; monotonic. Measures how long the program was paused.
inline std::chrono::milliseconds sinceBoot() {
    std::timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return std::chrono::seconds(time.tv_sec) +
           std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::nanoseconds(time.tv_nsec));
}

} // namespace velmora
