#include "platform/headless/toolkit.h"

#include <algorithm>

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
    ++openedDialogs_;
    first();
    while (form.IsOpen()) {
        if (script_.empty()) {
            EndStuck(form);
            return;
        }
        const Step step = std::move(script_.front());
        script_.pop_front();
        step(form);
    }
}

void HeadlessToolkit::HandleEvents(double waitSeconds) {
    clock_.Skip(std::max(waitSeconds, kShortestYield));
}

}  // namespace halvenmoor::headless
