#pragma once

#include "platform/services.h"

namespace halvenmoor::disk {

/// The local time of day.
class DiskClock : public platform::Clock {
public:
    double TimeOfDay() override;
};

}  // namespace halvenmoor::disk
