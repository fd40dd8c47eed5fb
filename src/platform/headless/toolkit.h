#pragma once

#include "forms/desktop.h"
#include "platform/headless/blank_canvas.h"
#include "platform/headless/services.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>

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
    int TopIndex(const forms::ListBox&) const override { return 0; }
    forms::Twips RowHeight(const forms::ListBox&) const override { return 13 * forms::kTwipsPerPixel; }
    forms::Canvas& CanvasOf(forms::PictureBox& box) override;

private:
    forms::Form& form_;
    forms::Point position_;
    std::map<const forms::PictureBox*, BlankCanvas> canvases_;
};

/// A window system without windows. What the user does in modal windows comes from a script, and the clock
/// skips the waits of the program. No yield is ever due: nobody sees the interface.
class HeadlessToolkit : public forms::Toolkit {
public:
    using Step = std::function<void(forms::Form&)>;

    explicit HeadlessToolkit(SkippingClock& clock) : clock_(clock) {}

    /// Adds something that the user does in a modal window, given the open one. Steps run in their order,
    /// each when its window has nothing else to do. A window that is open when the script is at its end ends
    /// the program.
    void Script(Step step) { script_.push_back(std::move(step)); }
    void ForgetScript() { script_.clear(); }

    /// How many modal windows have opened so far.
    int OpenedDialogs() const { return openedDialogs_; }

    std::unique_ptr<forms::View> CreateView(forms::Form& form) override {
        return std::make_unique<HeadlessView>(form);
    }
    void RunModal(forms::Form& form, const std::function<void()>& first) override;
    void HandleEvents(double waitSeconds) override;
    void Copy(const std::string&) override {}
    void Announce(const std::string&) override {}
    bool YieldIsDue() const override { return false; }

protected:
    /// Nothing in the script closes this window.
    virtual void EndStuck(forms::Form& form) { form.Owner().End(); }

private:
    SkippingClock& clock_;
    std::deque<Step> script_;
    int openedDialogs_ = 0;
};

}  // namespace halvenmoor::headless
