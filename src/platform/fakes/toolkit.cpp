#include "platform/fakes/toolkit.h"

#include <cstdio>
#include <cstdlib>

namespace halvenmoor::fakes {

void WatchedToolkit::RunModal(forms::Form& form, const std::function<void()>& first) {
    dialogs_.push_back(&form);
    HeadlessToolkit::RunModal(form, first);
    dialogs_.pop_back();
}

void WatchedToolkit::HandleEvents(double waitSeconds) {
    ++yields_;
    HeadlessToolkit::HandleEvents(waitSeconds);
    if (OnYield) OnYield();
}

void WatchedToolkit::EndStuck(forms::Form& form) {
    if (!OnStuck) {
        std::fprintf(stderr, "%s is open and nothing in the script closes it\n",
                     form.AtDesign().name.c_str());
        std::abort();
    }
    OnStuck(form);
    HeadlessToolkit::EndStuck(form);
}

}  // namespace halvenmoor::fakes
