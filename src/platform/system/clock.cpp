#include "platform/system/clock.h"

#include <time.h>

namespace halvenmoor::system {

double SystemClock::TimeOfDay() {
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    tm local{};
    ::localtime_r(&now.tv_sec, &local);
    const int seconds = (local.tm_hour * 60 + local.tm_min) * 60 + local.tm_sec;
    return seconds + static_cast<double>(now.tv_nsec) / 1e9;
}

}  // namespace halvenmoor::system
