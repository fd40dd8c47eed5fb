#pragma once

#include "platform/services.h"

#include <cmath>

namespace halvenmoor::headless {

/// A clock that moves only when it is told to.
class ManualClock : public platform::Clock {
public:
    explicit ManualClock(double secondsSinceMidnight = 0) : seconds_(secondsSinceMidnight) {}

    double TimeOfDay() override { return seconds_; }

    /// Moves on by so many seconds, across midnight too.
    void Advance(double seconds) { seconds_ = std::fmod(seconds_ + seconds, kSecondsPerDay); }

private:
    static constexpr double kSecondsPerDay = 86400;

    double seconds_;
};

}  // namespace halvenmoor::headless
