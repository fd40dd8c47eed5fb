#pragma once

#include "platform/services.h"

namespace halvenmoor::posix {

/// The local time of day.
class SystemClock : public platform::Clock {
public:
    double TimeOfDay() override;
};

}  // namespace halvenmoor::posix
