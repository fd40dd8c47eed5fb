#pragma once

#include "platform/services.h"

namespace halvenmoor::system {

/// The local time of day.
class SystemClock : public platform::Clock {
public:
    double TimeOfDay() override;
};

}  // namespace halvenmoor::system
