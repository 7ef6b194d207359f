#pragma once

#include <chrono>
#include <ctime>

namespace velmora {

/// Time since the machine started, suspend included; never set back. For measuring pauses of the program.
inline std::chrono::milliseconds sinceBoot() {
    std::timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return std::chrono::seconds(time.tv_sec) +
           std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::nanoseconds(time.tv_nsec));
}

} // namespace velmora
