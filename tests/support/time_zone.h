#pragma once

#include <cstdlib>
#include <ctime>

namespace velmora {

/// The time zone of the process while it exists.
class TimeZone {
public:
    explicit TimeZone(const char* zone) {
        setenv("TZ", zone, 1);
        tzset();
    }
    ~TimeZone() {
        unsetenv("TZ");
        tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;
};

} // namespace velmora
