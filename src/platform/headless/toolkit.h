#pragma once

#include "forms/desktop.h"
#include "platform/headless/memory_canvas.h"
#include "platform/headless/services.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace halvenmoor::headless {

/// A view without a window. Its form stands where the program put it.
class HeadlessView : public forms::View {
public:
    explicit HeadlessView(forms::Form& form) : form_(form) {}

    void Show() override { form_.Painted(); }
    void Hide() override {}
    void Update() override;
    forms::Point Position() const override { return position_; }
    forms::FrameMetrics WindowFrame() const override {
        return {.frameWidth = 3, .frameHeight = 4, .captionHeight = 22, .smallCaptionHeight = 17};
    }
    int TopIndex(const forms::ListBox&) const override { return TopRow; }
    forms::Twips RowHeight(const forms::ListBox&) const override { return 13 * forms::kTwipsPerPixel; }
    forms::Canvas& CanvasOf(forms::PictureBox& box) override;

    /// The first row that its lists show: the user scrolled.
    int TopRow = 0;

private:
    forms::Form& form_;
    forms::Point position_;
    std::map<const forms::PictureBox*, MemoryCanvas> canvases_;
};

/// A window system without windows, for tests and journeys. What the user does in modal windows comes from a
/// script, and the waiting of the program moves the clock.
class HeadlessToolkit : public forms::Toolkit {
public:
    using Step = std::function<void(forms::Form&)>;

    explicit HeadlessToolkit(ManualClock& clock) : clock_(clock) {}

    /// Adds something that the user does in a modal window, given the open one. Steps run in their order,
    /// each when its window has nothing else to do.
    void Script(Step step) { script_.push_back(std::move(step)); }
    void ForgetScript() { script_.clear(); }
    /// Something that happens at every yield to the interface.
    std::function<void()> OnYield;
    /// A modal window is open and the script is at its end: nothing would ever close it. Unless set, the
    /// process is aborted with a message.
    std::function<void(const forms::Form&)> OnStuck;

    /// No yield is ever due, so that a long run is not slowed down by an interface that nobody sees.
    bool SkipsYields = false;

    int Yields() const { return yields_; }
    /// The topmost modal window, none while the main window has the user.
    forms::Form* OpenDialog() const { return dialogs_.empty() ? nullptr : dialogs_.back(); }

    std::unique_ptr<forms::View> CreateView(forms::Form& form) override {
        return std::make_unique<HeadlessView>(form);
    }
    void RunModal(forms::Form& form, const std::function<void()>& first) override;
    void HandleEvents(double waitSeconds) override;
    bool YieldIsDue() const override { return !SkipsYields; }

private:
    void PlayScript(forms::Form& form);
    void ReportStuck(forms::Form& form) const;

    ManualClock& clock_;
    std::deque<Step> script_;
    std::vector<forms::Form*> dialogs_;
    int yields_ = 0;
};

}  // namespace halvenmoor::headless
