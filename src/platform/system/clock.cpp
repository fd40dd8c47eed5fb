#include "platform/system/clock.h"

#include <chrono>
#include <ctime>

namespace halvenmoor::system {

double SystemClock::TimeOfDay() {
    using std::chrono::system_clock;
    const system_clock::time_point now = system_clock::now();
    const std::time_t second = system_clock::to_time_t(now);
    const std::tm local = *std::localtime(&second);  // the program has one thread that asks
    const int seconds = (local.tm_hour * 60 + local.tm_min) * 60 + local.tm_sec;
    const std::chrono::duration<double> fraction = now - system_clock::from_time_t(second);
    return seconds + fraction.count();
}

}  // namespace halvenmoor::system
