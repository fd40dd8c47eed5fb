#include "platform/headless/toolkit.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace halvenmoor::headless {

namespace {

/// A yield takes at least this, in seconds, so that every wait ends.
constexpr double kShortestYield = 1e-6;

}  // namespace

void HeadlessView::Update() {
    if (const auto move = form_.TakeMove()) position_ = *move;
    form_.TakeChanges();
}

forms::Canvas& HeadlessView::CanvasOf(forms::PictureBox& box) {
    return canvases_.try_emplace(&box, box.AtDesign().bounds).first->second;
}

void HeadlessToolkit::RunModal(forms::Form& form, const std::function<void()>& first) {
    dialogs_.push_back(&form);
    first();
    PlayScript(form);
    dialogs_.pop_back();
}

void HeadlessToolkit::PlayScript(forms::Form& form) {
    while (form.IsOpen()) {
        if (script_.empty()) {
            ReportStuck(form);
            form.Owner().End();
            return;
        }
        const Step step = std::move(script_.front());
        script_.pop_front();
        step(form);
    }
}

void HeadlessToolkit::HandleEvents(double waitSeconds) {
    ++yields_;
    clock_.Advance(std::max(waitSeconds, kShortestYield));
    if (OnYield) OnYield();
}

void HeadlessToolkit::ReportStuck(forms::Form& form) const {
    if (OnStuck) {
        OnStuck(form);
        return;
    }
    std::fprintf(stderr, "%s is open and nothing in the script closes it\n", form.AtDesign().name.c_str());
    std::abort();
}

}  // namespace halvenmoor::headless
